// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/ByRef.h>
#include <halvekutils/base/Color.h>
#include <halvekutils/base/DateText.h>
#include <halvekutils/base/Export.h>
#include <halvekutils/base/Fetchable.h>
#include <halvekutils/base/StringArray.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/controls/Placement.h>
#include <halvekutils/dialogs/MessageBoxTypes.h>
#include <halvekutils/platform/Controls.h>
#include <halvekutils/prefs/OpenWindows.h>
#include <halvekutils/prefs/SystemPrefs.h>
#include <halvekutils/prefs/UserPrefs.h>
#include <halvekutils/refdata/CodesCollection.h>
#include <halvekutils/refdata/PrintersCollection.h>
#include <halvekutils/refdata/SecurityItemsCollection.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace halvek {

/// The object through which a host reaches every service of the library.
///
/// Create one at start-up, call InitUtils on it, then InitPrefs and InitOtherSettings as the
/// practice's settings arrive. Session values and reference collections are shared by all Utils
/// objects of the process; bins, open windows, preferences, the server's clock and the application
/// data folders belong to the object. Use it on the user-interface thread only.
///
/// Unless its description says otherwise a member never throws: it writes what went wrong to the
/// error log and returns an empty text, false or 0.
///
///     auto utils = Utils::Create();
///     utils->InitUtils(u"FrontDesk.log", u"Front Desk", u"clinic", false, u"2.4.1");
class HALVEK_EXPORT Utils : public std::enable_shared_from_this<Utils> {
  public:
    /// A new object. It shares the session of those that exist already.
    static std::shared_ptr<Utils> Create();
    ~Utils();
    Utils(const Utils&) = delete;
    Utils& operator=(const Utils&) = delete;

    /// The object that InitUtils was last called on; null before the first call. The library holds
    /// it until InitUtils is called on another, so the last one lives until the process ends.
    static std::shared_ptr<Utils> CurrentUtils();

    // The members stand in the order of their interface slots; of a property the setter is named
    // first, with the one exception of SpecialMode.

    /// The folder for the current user's data; stored for the host, never used by the library.
    void AppDataFolderUser(TextIn value);
    std::u16string AppDataFolderUser() const;

    /// The folder for data common to all users; stored for the host, never used by the library.
    void AppDataFolderCommon(TextIn value);
    std::u16string AppDataFolderCommon() const;

    /// The registry of the host's open windows, one for each Utils object.
    std::shared_ptr<halvek::OpenWindows> OpenWindows();

    /// Stores a copy of the preferences, as their settings text carries them: later changes of the
    /// host's object are not seen here, and LastPrinterUsed is not copied.
    void SetCurrentUserPrefs(const UserPrefs& CurrentUserPrefs);

    /// Shares the host's own object: either side sees the other's changes. Null for none.
    void SetCurrentSystemPrefs(std::shared_ptr<SystemPrefs> CurrentSystemPrefs);

    /// The shared system preferences; a new object is made and kept when there are none.
    std::shared_ptr<SystemPrefs> GetCurrentSystemPrefs();

    /// A copy of the stored user preferences, whose changes are not seen here; a new object when
    /// none were stored.
    std::shared_ptr<UserPrefs> GetCurrentUserPrefs() const;

    /// The delimiter between a code and its description that was given to InitOtherSettings; stored
    /// for the host.
    std::u16string CodeDelimiter() const;

    /// The column-width factor given to InitOtherSettings, narrowed to single precision.
    float ColumnAdjustValue() const;

    /// Stores the colours of highlighted headings, the delimiter between a code and its
    /// description, the column-width factor and the width of a scroll bar in twips.
    void InitOtherSettings(Color HighlightBackColor, Color HighlightForeColor, TextIn CodeDelimiter,
                           double ColumnAdjustValue, std::int32_t ScrollBarWidth);

    /// The width of a scroll bar in twips that was given to InitOtherSettings; stored for the host.
    std::int32_t ScrollBarWidth() const;

    /// Undoes HighlightHeading.
    ///
    /// The control shows the background of its container; a label loses its border, whoever gave
    /// it. Other kinds of control are left as they are. No control, or one that is gone, is beeped
    /// and logged with "Error in Utils.UnhighlightHeading ".
    /// @param EditCtr  AsHeading(&label)
    /// @param UseBlack  black text; false for the text colour of forms, which is the one to use
    ///     where forms are dark
    void UnhighlightHeading(const std::shared_ptr<HeadingControl>& EditCtr, bool UseBlack = true);

    /// Parks a text under a key, or replaces the text and type of the bin with exactly this key.
    ///
    /// A key that differs from an existing one in letter case only is refused: the refusal beeps
    /// and is logged with "Error in Utils.AddBin ", and the bins stay as they were.
    ///
    ///     utils->AddBin(u"LastPatient", u"4711", u"account");
    ///     utils->GetBinData(u"LastPatient")  // 4711
    void AddBin(TextIn BinKey, TextIn BinData, TextIn BinType);

    /// Drops all bins of this object.
    void ClearAllBins();

    /// Releases the current printers collection; GetPrintersCollection then returns null.
    void ClearPrintersCollection();

    /// Releases the current codes collection; GetCodesCollection then returns null.
    void ClearCodesCollection();

    /// Releases the current security collection; GetSecurityItemsCollection then returns null. Full
    /// access stays as it is.
    void ClearSecurityCollection();

    /// The text of the bin with exactly this key, letter case included; empty when there is none.
    std::u16string GetBinData(TextIn BinKey) const;

    /// True when there is a bin with exactly this key, letter case included.
    bool BinExists(TextIn BinKey) const;

    /// Removes the bin with exactly this key; does nothing when there is none.
    void RemoveBin(TextIn BinKey);

    /// Builds the current security collection anew from the signed-in user's rights.
    ///
    /// Items are parted by the character of code 230. Each is a key and one hexadecimal digit, the
    /// sum of 8 to read, 4 to add, 2 to modify and 1 to delete; any other last character grants
    /// nothing. Of two items with one key, letter case ignored, the first is kept and the second
    /// logged. Exactly "***" is full access: every look-up then grants all rights, in collections
    /// that the host kept too, until the next build with other data begins. A fault is beeped and
    /// logged with "BuildSecurityCollection "; the items read so far stay.
    ///
    ///     utils->BuildSecurityCollection(u"PATIENTSF\u00E6REPORTS8");
    ///     utils->GetSecurityItemsCollection()->Item(u"Reports")->AllowRead();  // true
    void BuildSecurityCollection(TextIn SecurityData);

    /// The positions, in twips on the screen, with which a pop-up opens beside a button or cell.
    ///
    /// @param Target  Beside(&button), or Beside(&view, index) for a cell
    /// @param posLeft  the target's left edge; for PopupEdge::Right its right edge
    /// @param posTopUp  the target's top, above which the pop-up opens when there is no room below
    /// @param posTopDown  the target's bottom, below which the pop-up opens
    /// @param Edge  PopupEdge::Left for the calendar and the palette, Right for selection lists
    ///
    /// All three are -1, not given, without a target, or when it is gone, which is beeped and
    /// logged with "Error in Utils.CalculateCellCoordinates ". A screen left of or above the main
    /// one has negative positions, which count as not given too; the members that take the target
    /// themselves serve every screen.
    void CalculateCellCoordinates(const std::shared_ptr<PopupTarget>& Target, float& posLeft,
                                  float& posTopUp, float& posTopDown,
                                  PopupEdge Edge = PopupEdge::Left);

    /// Shows the debug console and empties it; does nothing outside debug mode.
    void ClearDebug();

    /// Adds the server's serial printers, then the workstation's, to the current printers
    /// collection.
    ///
    /// Entries of the list are parted by tabs, their fields by ":": identifier, an ignored one,
    /// description, port. Call ClearPrintersCollection first: keys start at 0KEY in every build,
    /// and one that the collection has already ends the build. The special mode chooses where the
    /// workstation's printers come from: "printerlistold" for its printer list, 100 at most,
    /// "printerlistnew" for its connections; without either word the list stands in when the
    /// connections fail. A printing system that does not answer costs about a second. Bad entries
    /// are skipped and logged; any other fault is logged with "BuildPrintersCollection ".
    ///
    ///     utils->ClearPrintersCollection();
    ///     utils->BuildPrintersCollection(u"S:0:Spool queue:LPT1\t7:0:Label printer:COM2");
    void BuildPrintersCollection(TextIn SerialPrintersList);

    /// A copy of the colours given to InitPrefs, with the bounds they had. Throws
    /// SubscriptOutOfRange before InitPrefs.
    StringArray ColorArray() const;

    /// Learns how far the server's clock is ahead of the workstation's; each object keeps its own.
    ///
    /// @param TimeFromServer  date and time as ParseDateTime reads them, or a time of today; a comma
    ///     may stand before the time and a fraction, which is dropped, behind the seconds. Any other
    ///     text changes nothing and is shown in the debug console.
    ///
    /// Throws Overflow, and keeps what it knew, when the clocks are more than 68 years apart.
    void InitServerTime(TextIn TimeFromServer);

    /// The server's date and time in whole seconds; the workstation's until InitServerTime. After a
    /// fault, which is logged, 1/1/1970.
    DateTime ServerTime();

    /// A text of diagnostic words that all parts of the library and the host can read.
    std::u16string SpecialMode() const;
    void SpecialMode(TextIn value);

    /// Marks the caption of a field, in the highlight colours given to InitOtherSettings.
    ///
    /// A label, an option button or a check box; any other kind of control is left as it is. No
    /// control, or one that is gone, is logged with "Error in Utils.HighlightHeading ".
    /// @param EditCtr  AsHeading(&label)
    /// @param bDemoBlue  has no effect
    /// @param iBorderStyle  0 for a label without a border; any other value draws a thin line
    ///
    ///     utils->HighlightHeading(AsHeading(&providerLabel));
    void HighlightHeading(const std::shared_ptr<HeadingControl>& EditCtr, bool bDemoBlue = false,
                          std::int16_t iBorderStyle = 1);

    /// The background of the host's forms that was given to InitPrefs; message boxes in mbSkinColor
    /// have it.
    Color FormSkinColor() const;

    /// The current printers collection; null when none was built.
    std::shared_ptr<PrintersCollection> GetPrintersCollection() const;

    /// The current codes collection, the same object until the next build or clear; null when none
    /// was built.
    std::shared_ptr<CodesCollection> GetCodesCollection() const;

    /// The current security collection; null when none was built.
    std::shared_ptr<SecurityItemsCollection> GetSecurityItemsCollection() const;

    /// A new collection with copies of the current printers that none of the arguments leaves out,
    /// under the keys 1KEY and up; null when there is no current collection.
    ///
    /// The spool, the entry with the identifier "S", counts as no serial printer.
    std::shared_ptr<PrintersCollection> GetPrintersCollectionFiltered(bool ExcludeSpool = true,
                                                                      bool ExcludeFile = false,
                                                                      bool ExcludeWindows = false,
                                                                      bool ExcludeSerial = false);

    /// The background of fields that must be filled in, as given to InitPrefs; stored for the host.
    Color RequiredFieldBackColor() const;

    /// True while a Shift key is down, at the left or the right; false without a desktop.
    bool ShiftPressed() const;
    /// True while an Alt key is down; false without a desktop.
    bool AltPressed() const;
    /// True while a Ctrl key is down; false without a desktop.
    bool CtrlPressed() const;

    /// Takes the close button off a window of the host's.
    ///
    /// Its menu and Alt+F4 do not close it either; Escape still ends a QDialog. The host can close,
    /// hide or destroy it as ever, and neither the end of the program nor that of the session waits
    /// for it. The window flag of the close button, set again, undoes this.
    /// @param hwnd  the window's id; one that no window of this program has does nothing
    ///
    ///     utils->KillCloseButton(static_cast<std::int32_t>(window.winId()));
    void KillCloseButton(std::int32_t hwnd);

    /// The stamp of the host's program that was given to InitUtils; stored for the host.
    std::u16string ExeFileStamp() const;

    /// Waits for some milliseconds without handling any event; not at all for 0 and below. Windows
    /// are not redrawn meanwhile.
    void Sleep(std::int32_t MilliSeconds);

    /// Shows a message box and waits for its answer.
    ///
    /// @param Prompt  plain text; CR LF starts a new line
    /// @param Buttons  the button set
    /// @param Icon  the picture
    /// @param Title  empty for the application's name
    /// @param BackgroundColor, fontSize  written back when out of range, see their enumerations
    /// @param FontBold  a bold font
    /// @param CloseAfterNSec  seconds after which the box closes itself; below 1 it stays
    /// @return the button pressed; kClosedByCountdown (99) after the countdown. The close box gives
    ///     mbCancel when there is such a button, mbYes for mbYesHelp and else mbOK; the sets that
    ///     no button cancels have no close box. kNotAnswered (0), a value of no button, after a
    ///     fault, which is logged with "Error in Utils.ShowMsgBox ".
    ///
    ///     if (utils->ShowMsgBox(u"Delete the visit?", mbYesNo, mbTrash, u"Visits") == mbYes) ...
    MbMsgBoxResult ShowMsgBox(TextIn Prompt, ButtonsChoice Buttons, IconChoice Icon, TextIn Title,
                              ByRef<ColorChoice> BackgroundColor = ColorChoice{},
                              ByRef<FontSizeChoice> fontSize = FontSizeChoice{},
                              bool FontBold = false, std::int32_t CloseAfterNSec = 0);

    /// Appends one line to the error log: date and time, login name and the text, in Windows-1252.
    ///
    /// Works before InitUtils and never throws. A line that cannot be written is lost with a beep,
    /// and in debug mode with a message.
    void LogError(TextIn strError) noexcept;

    /// Chooses the first entry of a combo box that matches a text; without one the box stays as it
    /// is.
    ///
    /// A fault is logged with " | Function: FindInCombo | Error: #" and its number.
    /// @param cboComboBox  AsComboBox(&box)
    /// @param strStringToFind  the text
    /// @param blnPartialMatch  finds entries that contain the text; the empty text is contained in
    ///     every entry but the empty one
    /// @param blnMatchCase  false finds texts that differ in letter case, too
    /// @param blnShowErrors  tells the user about a fault, too
    /// @return the entry's position from 0; -1 when none matches, and after a fault
    ///
    ///     utils->FindInCombo(AsComboBox(&providers), u"ADAMS", true, false);
    std::int32_t FindInCombo(const std::shared_ptr<ComboBox>& cboComboBox, TextIn strStringToFind,
                             bool blnPartialMatch = false, bool blnMatchCase = true,
                             bool blnShowErrors = false);

    /// True when every character is a letter from A to Z, capital or small; true for an empty text.
    bool IsAlpha(TextIn strText) const;

    /// True when the collection is given, is not empty and an item under the key can be fetched.
    ///
    /// Any collection with a Count() and an Item(key) that throws for a missing key will do, the
    /// host's own too. A key missing from the security collection is added by the fetch.
    template <Fetchable Collection>
    bool ExistsInColl(const std::shared_ptr<Collection>& coll, TextIn key) const {
        return halvek::ExistsInColl(coll, key);
    }
    /// False: no collection is given.
    bool ExistsInColl(std::nullptr_t, TextIn /*key*/) const { return false; }

    /// Replaces the characters that no stored text may hold, see IsUnwantedChar.
    ///
    /// A character that Windows-1252 lacks counts as a question mark and becomes one. In debug mode
    /// the debug console gets both texts; throws ObjectNotSet when something was found before
    /// InitUtils.
    /// @param strIN  the text to be cleaned; the empty text gives an empty strOUT and false
    /// @param strOUT  the result; it may be the variable that strIN was read from
    /// @param strReplaceWith  stands for each character that is removed; may be empty
    /// @param bShowMessage  tells the user when something was found
    /// @param bDoNotRemoveUnwantedChars  only looks: strOUT is strIN unchanged
    /// @param strExceptions  characters that may stay, parted by ","
    /// @return true when something was found
    ///
    ///     utils->RemoveUnwantedChars(u"a|b", text, u"");                        // ab, true
    ///     utils->RemoveUnwantedChars(u"a|b", text, u"", false, false, u"|,^");  // a|b, false
    bool RemoveUnwantedChars(TextIn strIN, std::u16string& strOUT, TextIn strReplaceWith,
                             bool bShowMessage = false, bool bDoNotRemoveUnwantedChars = false,
                             TextIn strExceptions = {});

    /// True for the code of a colon, circumflex, grave accent or vertical bar, of a control
    /// character other than line feed and carriage return, and for every code from 127 on.
    bool IsUnwantedChar(std::int32_t locChar) const;

    /// Fills a combo box anew; no entry is chosen then.
    ///
    /// @param Items  parted by ":", which may also close the last one; the empty text empties the
    ///     box
    /// @param cboComboBox  AsComboBox(&box)
    /// @param bMaxLength  makes the box and its drop-down as wide as the longest entry needs,
    ///     within the screen; they are never made narrower
    /// @return true when the box was filled; a fault is logged with "Error in Utils.FillCombo "
    ///
    ///     utils->FillCombo(u"Dr. Adams:Dr. Baker:Dr. Clark", AsComboBox(&providers), true);
    bool FillCombo(TextIn Items, const std::shared_ptr<ComboBox>& cboComboBox,
                   bool bMaxLength = false);

    /// True for the code of a character that may be typed into a date: a digit, "/" and backspace.
    /// Throws InvalidArgument for what is no code of a character, below 0 or above 255.
    bool IsDateChar(std::int32_t locChar) const;

    /// A date with slashes as digits, month before day and year, or such digits as a date.
    ///
    /// Days that do not exist are not noticed. Without two slashes a text loses the slashes it has.
    /// @param strDate  the date; month, day and year in this order
    /// @param bConvert  true from digits: empty for what is not all digits, a month above 12 and a
    ///     year of three digits. No year is the current one, one of two digits is 1930 to 2029.
    ///
    ///     utils->ConvertNumberToDate(u"3/5/2024", false);  // 03052024
    ///     utils->ConvertNumberToDate(u"030524", true);     // 03/05/2024
    std::u16string ConvertNumberToDate(TextIn strDate, bool bConvert);

    /// The text with every character but those of the codes 32 to 126 shown as its code, as in
    /// "<9>". A line break follows each "<13>". A character that Windows-1252 lacks becomes "?".
    std::u16string RemoveUnprintableChars(TextIn Str) const;

    /// The server's date and time as text: mm/dd/yyyy, with hh:mm:ss AM or PM unless it is
    /// midnight.
    ///
    /// Integer parts count, what is no number is 0, negative counts go back.
    /// @param HDate  days since 12/31/1840; "days,seconds" with the seconds since midnight; or
    ///     ",seconds" for a time today
    /// @return "Error: time is incorrect" from 86,400 seconds on, which debug mode tells in a
    ///     message too. Empty for an empty text, and for a day before 1/1/100 or after 12/31/9999,
    ///     which is logged with "Error in Utils.ConvertHDate ".
    ///
    ///     utils->ConvertHDate(u"60000,43200");  // 04/10/2005 12:00:00 PM
    std::u16string ConvertHDate(TextIn HDate);

    /// Gives a control a font of at least a size.
    ///
    /// Where the font comes out smaller, as one with a few fixed sizes may, it is asked for in
    /// steps of 0.1 points more, 10 points at most. A font that does not get there either keeps the
    /// size as it was asked for.
    /// @param ob  FontOf(&widget)
    /// @param fontName  the face; one that is not installed is replaced by the desktop's closest
    /// @param fontSize  points, above 0 and up to 2160; any other is a fault, which is beeped and
    ///     logged with "Error in Utils.SetFontProperties ", and nothing is changed
    /// @return true when the font reports the size or more
    bool SetFontProperties(const std::shared_ptr<ControlFont>& ob, TextIn fontName = u"Tahoma",
                           float fontSize = 7.0F);

    /// Cuts a text at its first delimiter. Without one, both outputs keep what they held. A fault
    /// is beeped and logged with "Error in SplitLeftRight :" and the text.
    ///
    ///     utils->SplitLeftRight(u"key=value", u"=", left, right);  // left: key, right: value
    void SplitLeftRight(TextIn strSplit, TextIn Delimiter, std::u16string& strLeft,
                        std::u16string& strRight);

    /// Gives a grid one of nine fonts: "0" to "2" are 8 points plain, bold and italic, "3" to "5"
    /// the same at 10 points, "6" to "8" at 12. Any other code changes nothing.
    ///
    ///     utils->GridSetFontObject(GridFontOf(&grid), u"5");  // 10 points, italic
    void GridSetFontObject(const std::shared_ptr<GridFont>& GridFontObject, TextIn FontCode);

    /// Lets the user choose a day from a calendar.
    ///
    /// A fault is logged with "Error in Utils.ShowCalendar ".
    /// @param posLeft, posTopUp, posTopDown  twips on the screen: where the calendar's left edge
    ///     lies, where it ends when it opens upwards and where it starts when it opens downwards;
    ///     negative for not given, which centres it. It always lies wholly on the screen.
    /// @param DateToShow  any date; without one, or when it lies before 1753, DefaultDate is shown
    /// @param DefaultDate  likewise; without one today
    /// @param FormToRefresh  repainted when the calendar ends; null for none
    /// @param bNeedsConversions  DateToShow may be digits, see ConvertNumberToDate
    /// @return mm/dd/yyyy; empty when the calendar was closed without a choice
    ///
    ///     const auto day = utils->ShowCalendar(-1, -1, -1, visit.text());
    ///     if (!day.empty()) visit.setText(ToQString(day));
    std::u16string ShowCalendar(float posLeft = -1, float posTopUp = -1, float posTopDown = -1,
                                TextIn DateToShow = {}, TextIn DefaultDate = {},
                                const std::shared_ptr<OwnerForm>& FormToRefresh = nullptr,
                                bool bNeedsConversions = false);

    /// ShowCalendar, beside a button or cell: left edges aligned, below it when the screen has
    /// room, else above. Centred without a target, or when it is gone, which is logged.
    ///
    ///     auto day = utils->ShowCalendarAndCalculateCoordinates(Beside(&button), visit.text());
    std::u16string ShowCalendarAndCalculateCoordinates(
        const std::shared_ptr<PopupTarget>& CmdButtonOrCell = nullptr, TextIn DateToShow = {},
        TextIn DefaultDate = {}, const std::shared_ptr<OwnerForm>& FormToRefresh = nullptr,
        bool bNeedsConversions = false);

    /// Adds one line to the debug console, a window that stays out of the user's way: it opens
    /// without taking the focus and stands beside modal dialogs.
    ///
    /// Dropped outside debug mode, and without a desktop. The console keeps some 30,000 characters:
    /// a line beyond that clears it first. What goes wrong is logged with "Can not display Debug
    /// window".
    void ShowInDebug(TextIn strText);

    /// Lets the user work out an amount on a four-function calculator.
    ///
    /// It works from left to right and shows results with two decimals. A fault is beeped and
    /// logged with "Error in Utils.Calculate ".
    /// @param InitValue  the amount to start from, as a field shows it; what is not numeric starts
    ///     with an empty display
    /// @return what the display shows when the user presses RET, "ERROR" after a division by zero;
    ///     empty when the user presses Escape or closes the window
    ///
    ///     auto amount = utils->Calculate(field.text());
    ///     if (!amount.empty()) field.setText(ToQString(amount));
    std::u16string Calculate(TextIn InitValue = {});

    /// The application's name that was given to InitUtils.
    std::u16string AppName() const;
    /// The application's type that was given to InitUtils; stored for the host.
    std::u16string AppType() const;

    /// True in debug mode, which InitUtils switches on: the debug console shows lines, and some
    /// faults are told in messages.
    bool DBG() const;

    /// Starts the session and makes this object the current one.
    ///
    /// @param ErrFileName  name or path of the error log, folders parted by "/" or "\". A name
    ///     without a folder lies in the library's own folder; empty stands for "Error.Log".
    /// @param AppName  the title of the library's message boxes
    /// @param AppType, ExeFileStamp  stored for the host
    /// @param DebugMode  allows the debug console and tells some faults in messages
    void InitUtils(TextIn ErrFileName, TextIn AppName, TextIn AppType, bool DebugMode,
                   TextIn ExeFileStamp);

    /// Stores the palette's colours (decimal texts) and the colours of forms.
    ///
    /// Message boxes in mbSkinColor have FormSkinColor and FormTextColor; FormTopColor and
    /// RequiredFieldBackColor are stored for the host. A palette leaves the last two colours of the
    /// list out, see ShowColor.
    void InitPrefs(const StringArray& ColorArray, Color FormSkinColor, Color FormTextColor,
                   Color FormTopColor, Color RequiredFieldBackColor);

    /// The text colour of the host's forms that was given to InitPrefs.
    Color FormTextColor() const;
    /// The colour of a form's top that was given to InitPrefs; stored for the host.
    Color FormTopColor() const;

    /// Field number `intNum`, from 1, of a text; empty when there is no such field. A delimiter may
    /// have several characters. A number below 1 or an empty delimiter gives the empty text.
    ///
    ///     utils->SplitStr(u"A^B^C", u"^", 2)  // B
    std::u16string SplitStr(TextIn strSplit, TextIn delim, std::int16_t intNum) const;

    /// Cuts a text into the elements 1 to n of an array; element 0 stays empty.
    ///
    /// Meant for a delimiter of one character, which closes a field and need not close the last. A
    /// longer one ends a field too, but only its first character is skipped: the rest begins the
    /// next field. The empty text gives one empty field.
    /// @return true; false, with the array untouched, only when memory runs out
    ///
    ///     utils->StrToArr(u"A|B|", u"|", fields)  // fields: "", A, B
    bool StrToArr(TextIn Str, TextIn DEL, StringArray& Arr) const;

    /// How often a text occurs in another, counted from the left without overlap; 0 for an empty
    /// one.
    std::int32_t CountInstances(TextIn strSearchIn, TextIn strSearchFor) const;

    /// Cuts a long text into pieces of at most ChunkLength characters that end at a delimiter, into
    /// the elements 0 and up of an array.
    ///
    /// A first piece that ends in the delimiter without being cut is stored twice, in elements 0
    /// and 1.
    /// @return true when the pieces hold the whole text. False with the array untouched when an
    ///     argument is empty, the length is below 1, or the text fits into one piece and can be
    ///     used as it is; false with the pieces so far when a piece holds no delimiter. A fault is
    ///     beeped, logged with "ERR in HalvekUtils.ChunkStrToArr   " and false.
    ///
    ///     utils->ChunkStrToArr(u"AB|CD|EF|", pieces, 4, u"|");  // AB|, CD|, EF|
    bool ChunkStrToArr(TextIn Str, StringArray& Arr, std::int32_t ChunkLength, TextIn DEL) const;

    /// Builds the current codes collection anew from the server's codes data.
    ///
    /// Records are parted by "|", fields by the character of code 230; CodeDefinition::Init gives
    /// the fields. Of two records with one key, letter case ignored, the first is kept and the
    /// second logged. A collection that the host still holds stays as it is. A fault is logged with
    /// "BuildCodesCollection "; the records read so far stay.
    ///
    ///     utils->BuildCodesCollection(u"Insurance\u00E6INS\u00E61\u00E61\u00E6List\u00E6Name");
    ///     utils->GetCodesCollection()->Item(u"ins")->CodeDescription();  // Insurance
    void BuildCodesCollection(TextIn CodesData);

    /// The entities that the user may see, as the server sent them; stored for the host.
    void EntityListForUser(TextIn value);
    std::u16string EntityListForUser() const;

    /// Stores the path of the compiled help file (.chm) that the help members open.
    void InitHelp(TextIn FilePath);

    /// The path given to InitHelp, empty before.
    std::u16string HelpFilePath() const;

    /// Opens compiled help at the topic of a context number, in a window of its own that stays open
    /// beside the host's windows and dialogs; a later call uses the same window.
    ///
    /// @param hwnd  accepted and not used
    /// @param ContextID  the topic's number in the file
    /// @param HelpFileLocation  the help file, folders parted by "/" or "\"; empty for the path
    ///     given to InitHelp
    /// @return false when there is no such file, which a message tells the user. True otherwise: a
    ///     file that is no help file or is damaged, and a topic that is missing, show in the help
    ///     window and are logged.
    bool ShowHelp(std::int32_t hwnd, std::int32_t ContextID, TextIn HelpFileLocation = {});

    /// The same at a topic, given by its path in the help file; empty for the file's first page.
    ///
    ///     utils->ShowHelpByTopic(0, u"::/billing/late.htm#fees");
    bool ShowHelpByTopic(std::int32_t hwnd, TextIn TopicPath = {}, TextIn HelpFileLocation = {});

    // A currency field is an ordinary text box that hands its own events to the members below; the
    // OnNeg... members serve amounts that may be negative. While it has the focus it holds a bare
    // number of at most 7 digits before the point and 2 after it. Each member logs a fault with
    // "Error in HalvekUtils/Utils/", its own name and two blanks, and leaves the text as it is
    // then. A Qt host has all of this done by MakeCurrencyField.

    /// Judges a key before the text box does.
    ///
    /// A full selection is emptied first. "." in an empty box makes "0.", a second one jumps behind
    /// the first. A digit for which there is no room moves the caret to the end.
    /// @param ctr  the text box
    /// @param KeyAscii  the key's character code; set to 0 when the box must not insert it, after a
    ///     fault too
    ///
    ///     std::int16_t key = u'5';
    ///     utils->OnCurrencyCtrKeyPress(box, key);
    ///     if (key != 0) ...  // insert it
    void OnCurrencyCtrKeyPress(const std::shared_ptr<TextControl>& ctr, std::int16_t& KeyAscii);

    /// Cuts what follows the point to two characters; only then the caret goes to the end.
    void OnCurrencyCtrChange(const std::shared_ptr<TextControl>& ctr);

    /// Takes "$" and the thousands commas off and selects the text, which is all that a locked box
    /// gets. Serves both families.
    void OnCurrencyCtrGotFocus(const std::shared_ptr<TextControl>& ctr);

    /// Shows the amount as "$" and the number with thousands commas and two decimals.
    ///
    /// Without a point, a number of nine characters ends in cents, and one of any other length
    /// above seven is cut to seven. A text that is no number stays as it is and is logged.
    /// @param ctr  the text box
    /// @param Cancel  false for an empty box, which stays empty; otherwise not written
    void OnCurrencyCtrValidate(const std::shared_ptr<TextControl>& ctr, bool& Cancel);

    /// The most digits before the point: 7, whatever the system preferences say.
    std::int16_t CURRENCY_NUMDECIMALS() const;

    /// The most digits after the point: 2, whatever the system preferences say.
    std::int16_t CURRENCY_NUMFRACT() const;

    /// OnCurrencyCtrKeyPress for signed amounts: "-" turns the sign over and "+" takes it off,
    /// wherever the caret stands. Digits and points always land behind the sign.
    void OnNegCurrencyCtrKeyPress(const std::shared_ptr<TextControl>& ctr, std::int16_t& KeyAscii);

    /// OnCurrencyCtrChange for signed amounts.
    void OnNegCurrencyCtrChange(const std::shared_ptr<TextControl>& ctr);

    /// OnCurrencyCtrValidate for signed amounts: a negative one shows as "$-25.00", "-0.00" as
    /// "0.00".
    void OnNegCurrencyCtrValidate(const std::shared_ptr<TextControl>& ctr, bool& Cancel);

    /// Checks, when the upper field of a range is left, that it is not below the lower one.
    ///
    /// When it is, a message says so, the field is emptied and Cancel becomes true. An amount that
    /// is 0 or no number turns the check off.
    /// @param ctr  the upper field
    /// @param strMin, strMax  the amounts as their fields show them
    /// @param lblMin, lblMax  what the message calls the two fields
    /// @param Cancel  true when the check fails; otherwise not written
    ///
    ///     utils->OnCurrencyCtrValidateRange(to, from->Text(), to->Text(), u"From", u"To", cancel);
    void OnCurrencyCtrValidateRange(const std::shared_ptr<TextControl>& ctr, TextIn strMin,
                                    TextIn strMax, TextIn lblMin, TextIn lblMax, bool& Cancel);

    /// True for a key that opens a look-up: the LookupKey or LookupKey1 of the current system
    /// preferences, of which the low 16 bits count. Throws ObjectNotSet without preferences.
    bool IsLookupKey(std::int16_t CodeKey) const;

    /// "1" for the LookupKey, else "2" for the LookupKey1 and empty for any other key. Throws
    /// ObjectNotSet without preferences.
    std::u16string ConvertLookupKeyToSearchBy(std::int16_t CodeKey) const;

    /// ShowColor, beside a button or cell: left edges aligned, below it when the screen has room,
    /// else above. Without a target, or when it is gone, which is logged, the palette is centred.
    ///
    ///     auto chosen = utils->ShowColorAndCalculateCoordinates(Beside(&button));
    std::u16string ShowColorAndCalculateCoordinates(
        const std::shared_ptr<PopupTarget>& CmdButtonOrCell = nullptr,
        const std::shared_ptr<OwnerForm>& FormToRefresh = nullptr);

    /// Lets the user choose one of the colours given to InitPrefs.
    ///
    /// Shown are entry 1 and, of entry 2 to the last but two, those above -1. A fault, such as
    /// colours without an entry 1, is logged with "Error in Utils.ShowColor ".
    /// @param posLeft, posTopUp, posTopDown  twips on the screen: where the palette's left edge
    ///     lies, where it ends when it opens upwards and where it starts when it opens downwards;
    ///     negative for not given, which centres it. It always lies wholly on the screen.
    /// @param FormToRefresh  repainted when the palette ends; null for none
    /// @return the colour, a tab and its index in the list; empty when none was chosen
    ///
    ///     utils->ShowColor(left, top, bottom)  // 255<TAB>7
    std::u16string ShowColor(float posLeft = -1, float posTopUp = -1, float posTopDown = -1,
                             const std::shared_ptr<OwnerForm>& FormToRefresh = nullptr);

    /// ShowSelection, beside a button or cell.
    std::u16string ShowSelectionAndCalculateCoordinates(
        TextIn ListName, TextIn AllValues, TextIn SelectedValues = {},
        const std::shared_ptr<PopupTarget>& CmdButtonOrCell = nullptr,
        const std::shared_ptr<OwnerForm>& FormToRefresh = nullptr,
        ByRef<std::u16string> TypedCharacter = std::u16string());

    /// ShowSelectionGrid, beside a button or cell: right edges aligned, below it when the screen
    /// has room, else above.
    ///
    /// All other arguments are those of ShowSelectionGrid. A cell's target knows its grid, so there
    /// is no argument for the grid. Without a target, or when it is gone, which is logged, the
    /// dialog is centred.
    ///
    ///     auto chosen = utils->ShowSelectionGridAndCalculateCoordinates(
    ///         u"Providers", server.providers(), row.codes(), Beside(&view, index));
    std::u16string ShowSelectionGridAndCalculateCoordinates(
        TextIn ListName, TextIn AllValues, TextIn SelectedValues = {},
        const std::shared_ptr<PopupTarget>& CmdButtonOrCell = nullptr,
        const std::shared_ptr<OwnerForm>& FormToRefresh = nullptr,
        ByRef<std::u16string> TypedCharacter = std::u16string(), bool DoNotIncludeDeleted = false);

    /// Lets the user choose codes from a list of the server's; deleted entries show in red.
    ///
    /// The same as ShowSelectionGrid, which leaves deleted entries out when asked to.
    std::u16string ShowSelection(TextIn ListName, TextIn AllValues, TextIn SelectedValues = {},
                                 float posLeft = -1, float posTopUp = -1, float posTopDown = -1,
                                 const std::shared_ptr<OwnerForm>& FormToRefresh = nullptr,
                                 ByRef<std::u16string> TypedCharacter = std::u16string());

    /// Lets the user choose codes from a list of the server's.
    ///
    /// Codes in SelectedValues that the list lacks are told one by one before the dialog opens.
    /// @param ListName  plain text, the dialog's caption
    /// @param AllValues  entries parted by ":", a header first; the fields of an entry, parted by
    ///     TAB, are its code, its description and, as the last, "1" when it is deleted
    /// @param SelectedValues  the codes chosen so far, parted by ","
    /// @param posLeft, posTopUp, posTopDown  twips on the screen: where the dialog's right edge
    ///     lies, where it ends when it opens upwards and where it starts when it opens downwards;
    ///     negative for not given, which centres it. It always lies wholly on the screen.
    /// @param FormToRefresh  repainted when the dialog ends; null for none
    /// @param TypedCharacter  typed already, goes into the box of codes; the variable is cleared
    /// @param DoNotIncludeDeleted  leaves deleted entries out; else they show in red
    /// @return the chosen codes, parted by ","; SelectedValues as they were after Cancel, Escape
    ///     and the close box, or when AllValues is empty, which a message tells; "CANCEL" after OK
    ///     without a change. A fault is logged with "ShowSelectionGridForm error " and gives what
    ///     was ticked until then: nothing when it came before the dialog was made.
    ///
    ///     auto chosen = utils->ShowSelectionGrid(u"Providers", server.providers(), u"A1,B2");
    ///     if (chosen != u"CANCEL") visit.setProviders(chosen);
    std::u16string ShowSelectionGrid(TextIn ListName, TextIn AllValues, TextIn SelectedValues = {},
                                     float posLeft = -1, float posTopUp = -1, float posTopDown = -1,
                                     const std::shared_ptr<OwnerForm>& FormToRefresh = nullptr,
                                     ByRef<std::u16string> TypedCharacter = std::u16string(),
                                     bool DoNotIncludeDeleted = false);

    /// The settings of a remote session; stored for the host.
    void RemoteSettings(TextIn value);
    std::u16string RemoteSettings() const;

  private:
    struct Private;

    Utils();

    std::unique_ptr<Private> d_;
};

}  // namespace halvek
