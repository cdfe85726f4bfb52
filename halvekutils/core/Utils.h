// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/ByRef.h>
#include <halvekutils/base/Color.h>
#include <halvekutils/base/DateText.h>
#include <halvekutils/base/Export.h>
#include <halvekutils/base/Fetchable.h>
#include <halvekutils/base/StringArray.h>
#include <halvekutils/base/TextIn.h>
#include <halvekutils/base/XlibOff.h>
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
/// practice's settings arrive. All Utils objects of the process share the session's values and the
/// reference collections; bins, open windows, preferences, the server's clock and the application
/// data folders belong to one object. Use it on the user-interface thread only, the one that made
/// the platform: on another, members that may open a window are refused, as by a fault.
///
/// Unless its description says otherwise, a member never throws: it logs the fault and returns an
/// empty text, false or 0.
///
/// @code{.cpp}
/// auto utils = Utils::Create();
/// utils->InitUtils(u"FrontDesk.log", u"Front Desk", u"clinic", false, u"2.4.1");
/// @endcode
class HALVEK_EXPORT Utils : public std::enable_shared_from_this<Utils> {
  public:
    /// A new object, which shares the session of those that exist already.
    static std::shared_ptr<Utils> Create();
    ~Utils();
    Utils(const Utils&) = delete;
    Utils& operator=(const Utils&) = delete;

    /// The object on which InitUtils was called last; null before the first call. The library holds
    /// it until InitUtils is called on another, so the last one lives until the process ends.
    static std::shared_ptr<Utils> CurrentUtils();

    // The members stand in the order of their interface slots. The setter of a property comes
    // before the getter, except for SpecialMode.

    /// The folder for the current user's data; stored for the host, never used by the library.
    void AppDataFolderUser(TextIn value);
    std::u16string AppDataFolderUser() const;

    /// The folder for data common to all users; stored for the host, never used by the library.
    void AppDataFolderCommon(TextIn value);
    std::u16string AppDataFolderCommon() const;

    /// The registry of the host's open windows; each Utils object has one.
    std::shared_ptr<halvek::OpenWindows> OpenWindows();

    /// Stores a copy of the preferences in the settings text: later changes to the host's object
    /// have no effect here, and LastPrinterUsed is not copied.
    void SetCurrentUserPrefs(const UserPrefs& CurrentUserPrefs);

    /// Shares the host's own object: each side sees the other's changes. Null for none.
    void SetCurrentSystemPrefs(std::shared_ptr<SystemPrefs> CurrentSystemPrefs);

    /// The shared system preferences; when there are none, makes and keeps a new object.
    std::shared_ptr<SystemPrefs> GetCurrentSystemPrefs();

    /// A copy of the stored user preferences: changes to it have no effect here. A new object when
    /// none were stored.
    std::shared_ptr<UserPrefs> GetCurrentUserPrefs() const;

    /// The delimiter between a code and its description, as given to InitOtherSettings; stored for
    /// the host.
    std::u16string CodeDelimiter() const;

    /// The column-width factor given to InitOtherSettings, narrowed to single precision.
    float ColumnAdjustValue() const;

    /// Stores the colours of highlighted headings, the delimiter between a code and its
    /// description, the column-width factor and the width of a scroll bar in twips.
    void InitOtherSettings(Color HighlightBackColor, Color HighlightForeColor, TextIn CodeDelimiter,
                           double ColumnAdjustValue, std::int32_t ScrollBarWidth);

    /// The width of a scroll bar in twips, as given to InitOtherSettings; stored for the host.
    std::int32_t ScrollBarWidth() const;

    /// Undoes HighlightHeading.
    ///
    /// The control shows the background of its container; a label loses its border, even one that
    /// the host gave it. Other kinds of control stay as they are. A null or destroyed control beeps
    /// and is logged with "Error in Utils.UnhighlightHeading ".
    /// @param EditCtr  AsHeading(&label)
    /// @param UseBlack  true for black text; false for the text colour of forms, which suits dark
    ///     forms
    void UnhighlightHeading(const std::shared_ptr<HeadingControl>& EditCtr, bool UseBlack = true);

    /// Stores a text under a key, or replaces the text and type of the bin with exactly this key.
    ///
    /// A key that differs from an existing one only in letter case is refused, with a beep and a
    /// log line that starts with "Error in Utils.AddBin "; the bins stay as they were.
    ///
    /// @code{.cpp}
    /// utils->AddBin(u"LastPatient", u"4711", u"account");
    /// utils->GetBinData(u"LastPatient")  // 4711
    /// @endcode
    void AddBin(TextIn BinKey, TextIn BinData, TextIn BinType);

    /// Removes all bins of this object.
    void ClearAllBins();

    /// Releases the current printers collection; GetPrintersCollection then returns null.
    void ClearPrintersCollection();

    /// Releases the current codes collection; GetCodesCollection then returns null.
    void ClearCodesCollection();

    /// Releases the current security collection; GetSecurityItemsCollection then returns null. Full
    /// access stays as it is.
    void ClearSecurityCollection();

    /// The text of the bin with exactly this key, in the same letter case; empty when there is
    /// none.
    std::u16string GetBinData(TextIn BinKey) const;

    /// True when there is a bin with exactly this key, in the same letter case.
    bool BinExists(TextIn BinKey) const;

    /// Removes the bin with exactly this key; does nothing when there is none.
    void RemoveBin(TextIn BinKey);

    /// Builds a new current security collection from the signed-in user's rights.
    ///
    /// Items are separated by the character of code 230. Each is a key and one hexadecimal digit,
    /// the sum of 8 to read, 4 to add, 2 to modify and 1 to delete; any other last character grants
    /// nothing. Of two items with the same key, letter case ignored, the first is kept and the
    /// second logged. The text "***" means full access: until the next build with other data
    /// begins, every look-up grants all rights, also in collections that the host has kept. A fault
    /// beeps and is logged with "BuildSecurityCollection "; the items read so far stay.
    ///
    /// @code{.cpp}
    /// utils->BuildSecurityCollection(u"PATIENTSF\u00E6REPORTS8");
    /// utils->GetSecurityItemsCollection()->Item(u"Reports")->AllowRead();  // true
    /// @endcode
    void BuildSecurityCollection(TextIn SecurityData);

    /// The positions, in twips on the screen, at which a pop-up opens beside a button or cell.
    ///
    /// @param Target  Beside(&button), or Beside(&view, index) for a cell
    /// @param posLeft  the target's left edge; for PopupEdge::Right, its right edge
    /// @param posTopUp  the target's top, above which the pop-up opens when there is no room below
    /// @param posTopDown  the target's bottom, below which the pop-up opens
    /// @param Edge  PopupEdge::Left for the calendar and the palette, Right for selection lists
    ///
    /// All three are -1, for "not given", without a target and when the target no longer exists,
    /// which beeps and is logged with "Error in Utils.CalculateCellCoordinates ". On a screen left
    /// of or above the main one, positions are negative and count as not given too; the members
    /// that take the target themselves work on every screen.
    void CalculateCellCoordinates(const std::shared_ptr<PopupTarget>& Target, float& posLeft,
                                  float& posTopUp, float& posTopDown,
                                  PopupEdge Edge = PopupEdge::Left);

    /// Shows the debug console and empties it; does nothing outside debug mode.
    void ClearDebug();

    /// Adds the server's serial printers and then the workstation's printers to the current
    /// printers collection.
    ///
    /// Tabs separate the entries of the list, ":" separates their fields: identifier, an ignored
    /// one, description, port. Call ClearPrintersCollection first: keys start at 0KEY in every
    /// build, and a key that the collection already has ends the build. The special mode chooses
    /// where the workstation's printers come from: "printerlistold" means its printer list, at most
    /// 100; "printerlistnew" means its connections; without either word, the list is used when the
    /// connections fail. A printing system that does not answer costs about a second. Bad entries
    /// are skipped and logged; any other fault is logged with "BuildPrintersCollection ".
    ///
    /// @code{.cpp}
    /// utils->ClearPrintersCollection();
    /// utils->BuildPrintersCollection(u"S:0:Spool queue:LPT1\t7:0:Label printer:COM2");
    /// @endcode
    void BuildPrintersCollection(TextIn SerialPrintersList);

    /// A copy of the colours given to InitPrefs, with the same bounds. Throws SubscriptOutOfRange
    /// before InitPrefs.
    StringArray ColorArray() const;

    /// Stores how far the server's clock is ahead of the workstation's, for this object only.
    ///
    /// @param TimeFromServer  date and time as ParseDateTime reads them, or a time of today; a
    /// comma
    ///     may stand before the time and a fraction, which is dropped, after the seconds. Any other
    ///     text changes nothing and is shown in the debug console.
    ///
    /// Throws Overflow, and changes nothing, when the clocks are more than 68 years apart.
    void InitServerTime(TextIn TimeFromServer);

    /// The server's date and time in whole seconds; before InitServerTime, the workstation's. A
    /// fault is logged and gives 1/1/1970.
    DateTime ServerTime();

    /// Diagnostic words that every part of the library, and the host, can read.
    std::u16string SpecialMode() const;
    void SpecialMode(TextIn value);

    /// Marks the caption of a field, in the highlight colours given to InitOtherSettings.
    ///
    /// The caption may be a label, an option button or a check box; any other kind of control stays
    /// as it is. A null or destroyed control beeps and is logged with
    /// "Error in Utils.HighlightHeading ".
    /// @param EditCtr  AsHeading(&label)
    /// @param bDemoBlue  has no effect
    /// @param iBorderStyle  0 for a label without a border; any other value draws a thin line
    ///
    /// @code{.cpp}
    /// utils->HighlightHeading(AsHeading(&providerLabel));
    /// @endcode
    void HighlightHeading(const std::shared_ptr<HeadingControl>& EditCtr, bool bDemoBlue = false,
                          std::int16_t iBorderStyle = 1);

    /// The background of the host's forms, as given to InitPrefs; message boxes in mbSkinColor use
    /// it.
    Color FormSkinColor() const;

    /// The current printers collection; null when none was built.
    std::shared_ptr<PrintersCollection> GetPrintersCollection() const;

    /// The current codes collection, the same object until the next build or clear; null when none
    /// was built.
    std::shared_ptr<CodesCollection> GetCodesCollection() const;

    /// The current security collection; null when none was built.
    std::shared_ptr<SecurityItemsCollection> GetSecurityItemsCollection() const;

    /// A new collection with copies of those current printers that no argument leaves out, under
    /// the keys 1KEY and up; null when there is no current collection.
    ///
    /// The spool, the entry with the identifier "S", does not count as a serial printer.
    std::shared_ptr<PrintersCollection> GetPrintersCollectionFiltered(bool ExcludeSpool = true,
                                                                      bool ExcludeFile = false,
                                                                      bool ExcludeWindows = false,
                                                                      bool ExcludeSerial = false);

    /// The background of fields that must be filled in, as given to InitPrefs; stored for the host.
    Color RequiredFieldBackColor() const;

    /// True while either Shift key is down; false without a desktop.
    bool ShiftPressed() const;
    /// True while an Alt key is down; false without a desktop.
    bool AltPressed() const;
    /// True while a Ctrl key is down; false without a desktop.
    bool CtrlPressed() const;

    /// Removes the close button of one of the host's windows.
    ///
    /// The window's menu and Alt+F4 no longer close it either; Escape still ends a QDialog. The
    /// host can close, hide or destroy the window as before, and it delays neither the end of the
    /// program nor that of the desktop session. To undo this, set the window flag of the close
    /// button again.
    /// @param hwnd  the window's id; nothing happens when no window of this program has it
    ///
    /// @code{.cpp}
    /// utils->KillCloseButton(static_cast<std::int32_t>(window.winId()));
    /// @endcode
    void KillCloseButton(std::int32_t hwnd);

    /// The stamp of the host's program, as given to InitUtils; stored for the host.
    std::u16string ExeFileStamp() const;

    /// Waits for some milliseconds without handling any event, so windows are not redrawn either.
    /// Returns at once for 0 and below.
    void Sleep(std::int32_t MilliSeconds);

    /// Shows a message box and waits for its answer.
    ///
    /// @param Prompt  plain text; CR LF starts a new line. A text of more than 65,535
    ///     characters is cut there, and a note says how many more there are
    /// @param Buttons  the button set
    /// @param Icon  the picture
    /// @param Title  empty for the application's name
    /// @param BackgroundColor,fontSize  corrected and written back when out of range, see their
    ///     enumerations
    /// @param FontBold  a bold font
    /// @param CloseAfterNSec  seconds after which the box closes itself; below 1 it stays
    /// @return the button pressed; kClosedByCountdown (99) after the countdown. The close box gives
    ///     mbCancel when there is a Cancel button, mbYes for mbYesHelp, and otherwise mbOK; sets
    ///     that no button cancels have no close box. A fault beeps, is logged with "Error in
    ///     Utils.ShowMsgBox " and gives kNotAnswered (0), the value of no button.
    ///
    /// @code{.cpp}
    /// if (utils->ShowMsgBox(u"Delete the visit?", mbYesNo, mbTrash, u"Visits") == mbYes) ...
    /// @endcode
    MbMsgBoxResult ShowMsgBox(TextIn Prompt, ButtonsChoice Buttons, IconChoice Icon, TextIn Title,
                              ByRef<ColorChoice> BackgroundColor = ColorChoice{},
                              ByRef<FontSizeChoice> fontSize = FontSizeChoice{},
                              bool FontBold = false, std::int32_t CloseAfterNSec = 0);

    /// Appends one line to the error log: date and time, login name and the text, in Windows-1252.
    ///
    /// Works before InitUtils and never throws. A line that cannot be written is lost with a beep
    /// and, in debug mode, with a message.
    void LogError(TextIn strError) noexcept;

    /// Chooses the first entry of a combo box that matches a text; if none does, the box stays as
    /// it is.
    ///
    /// A fault is logged with " | Function: FindInCombo | Error: #" and its number.
    /// @param cboComboBox  AsComboBox(&box)
    /// @param strStringToFind  the text
    /// @param blnPartialMatch  true to find entries that contain the text; every entry but an empty
    ///     one contains the empty text
    /// @param blnMatchCase  false to ignore letter case
    /// @param blnShowErrors  true to show a message after a fault, too
    /// @return the entry's position from 0; -1 when none matches, and after a fault
    ///
    /// @code{.cpp}
    /// utils->FindInCombo(AsComboBox(&providers), u"ADAMS", true, false);
    /// @endcode
    std::int32_t FindInCombo(const std::shared_ptr<ComboBox>& cboComboBox, TextIn strStringToFind,
                             bool blnPartialMatch = false, bool blnMatchCase = true,
                             bool blnShowErrors = false);

    /// True when every character is a letter from A to Z, capital or small; true for an empty text.
    bool IsAlpha(TextIn strText) const;

    /// True when there is a collection, it is not empty and fetching the item under the key
    /// succeeds.
    ///
    /// Works with any collection that has Count() and an Item(key) that throws for a missing key,
    /// also a host's own. The security collection adds a missing key when it is fetched.
    template <Fetchable Collection>
    bool ExistsInColl(const std::shared_ptr<Collection>& coll, TextIn key) const {
        return halvek::ExistsInColl(coll, key);
    }
    /// Always false: there is no collection.
    bool ExistsInColl(std::nullptr_t, TextIn /*key*/) const { return false; }

    /// Replaces the characters that no stored text may hold, see IsUnwantedChar.
    ///
    /// A character that Windows-1252 lacks counts as a question mark and becomes one. In debug mode
    /// the debug console shows both texts. Throws ObjectNotSet when it finds something before
    /// InitUtils.
    /// @param strIN  the text to clean; an empty one gives an empty strOUT and false
    /// @param strOUT  the result; may be the same variable as strIN
    /// @param strReplaceWith  replaces each unwanted character; may be empty
    /// @param bShowMessage  true to show a message when something was found
    /// @param bDoNotRemoveUnwantedChars  true only to check: strOUT becomes strIN unchanged
    /// @param strExceptions  characters that may stay, separated by ","
    /// @return true when something was found
    ///
    /// @code{.cpp}
    /// utils->RemoveUnwantedChars(u"a|b", text, u"");                        // ab, true
    /// utils->RemoveUnwantedChars(u"a|b", text, u"", false, false, u"|,^");  // a|b, false
    /// @endcode
    bool RemoveUnwantedChars(TextIn strIN, std::u16string& strOUT, TextIn strReplaceWith,
                             bool bShowMessage = false, bool bDoNotRemoveUnwantedChars = false,
                             TextIn strExceptions = {});

    /// True for the code of a colon, circumflex, grave accent or vertical bar, for that of a
    /// control character other than line feed and carriage return, and for every code from 127 on.
    bool IsUnwantedChar(std::int32_t locChar) const;

    /// Replaces all entries of a combo box; none is chosen afterwards.
    ///
    /// @param Items  the entries, separated by ":"; the last one may end in ":" too. An empty text
    ///     empties the box.
    /// @param cboComboBox  AsComboBox(&box)
    /// @param bMaxLength  true to widen the box and its drop-down to the longest entry, within the
    ///     screen; they never become narrower
    /// @return true when the box was filled; a fault beeps and is logged with "Error in
    ///     Utils.FillCombo "
    ///
    /// @code{.cpp}
    /// utils->FillCombo(u"Dr. Adams:Dr. Baker:Dr. Clark", AsComboBox(&providers), true);
    /// @endcode
    bool FillCombo(TextIn Items, const std::shared_ptr<ComboBox>& cboComboBox,
                   bool bMaxLength = false);

    /// True for the code of a character that may be typed into a date: a digit, "/" or backspace.
    /// Throws InvalidArgument for a number that is not a character's code, below 0 or above 255.
    bool IsDateChar(std::int32_t locChar) const;

    /// Converts a date with slashes to digits, or such digits to a date.
    ///
    /// Does not check whether the day exists. A text with fewer than two slashes just loses them.
    /// @param strDate  the date; month, day and year in this order
    /// @param bConvert  false to convert to digits; true to convert from digits, which gives an
    ///     empty text for one that is not all digits, for a month above 12 and for a year of three
    ///     digits. A missing year is the current one; a year of two digits is 1930 to 2029.
    ///
    /// @code{.cpp}
    /// utils->ConvertNumberToDate(u"3/5/2024", false);  // 03052024
    /// utils->ConvertNumberToDate(u"030524", true);     // 03/05/2024
    /// @endcode
    std::u16string ConvertNumberToDate(TextIn strDate, bool bConvert);

    /// The text with every character outside the codes 32 to 126 written as its code, as in "<9>".
    /// A line break follows each "<13>". A character that Windows-1252 lacks becomes "?".
    std::u16string RemoveUnprintableChars(TextIn Str) const;

    /// Converts the server's date and time to text: mm/dd/yyyy, with hh:mm:ss AM or PM unless it is
    /// midnight.
    ///
    /// Fractions are ignored, a text that is not a number counts as 0, and negative numbers go
    /// back.
    /// @param HDate  days since 12/31/1840; "days,seconds" with the seconds since midnight; or
    ///     ",seconds" for a time today
    /// @return the text; "Error: time is incorrect" from 86,400 seconds on, which also shows a
    ///     message in debug mode. Empty for an empty text, and for a day before 1/1/100 or after
    ///     12/31/9999, which is logged with "Error in Utils.ConvertHDate ".
    ///
    /// @code{.cpp}
    /// utils->ConvertHDate(u"60000,43200");  // 04/10/2005 12:00:00 PM
    /// @endcode
    std::u16string ConvertHDate(TextIn HDate);

    /// Gives a control a font of at least the given size.
    ///
    /// Style sheets do not change it, later ones included; a font that the host sets afterwards,
    /// where none applies, does. A font that has only a few sizes may come out smaller. Then larger
    /// sizes are tried in steps of 0.1 points, up to 10 points more; if none suffices, the font is
    /// set to `fontSize`.
    /// @param ob  FontOf(&widget)
    /// @param fontName  the face; the desktop replaces one that is not installed
    /// @param fontSize  points, above 0 and up to 2160; any other value changes nothing, beeps and
    ///     is logged with "Error in Utils.SetFontProperties "
    /// @return true when the font reports the size or more
    bool SetFontProperties(const std::shared_ptr<ControlFont>& ob, TextIn fontName = u"Tahoma",
                           float fontSize = 7.0F);

    /// Cuts a text at its first delimiter. Without a delimiter both outputs keep their values. A
    /// fault beeps and is logged with "Error in SplitLeftRight :" and the text.
    ///
    /// @code{.cpp}
    /// utils->SplitLeftRight(u"key=value", u"=", left, right);  // left: key, right: value
    /// @endcode
    void SplitLeftRight(TextIn strSplit, TextIn Delimiter, std::u16string& strLeft,
                        std::u16string& strRight);

    /// Gives a grid one of nine fonts: "0" to "2" are plain, bold and italic at 8 points, "3" to
    /// "5" the same at 10 points, "6" to "8" at 12. Any other code changes nothing.
    ///
    /// @code{.cpp}
    /// utils->GridSetFontObject(GridFontOf(&grid), u"5");  // 10 points, italic
    /// @endcode
    void GridSetFontObject(const std::shared_ptr<GridFont>& GridFontObject, TextIn FontCode);

    /// Lets the user choose a day from a calendar.
    ///
    /// A fault beeps and is logged with "Error in Utils.ShowCalendar ".
    /// @param posLeft,posTopUp,posTopDown  twips on the screen: the calendar's left edge, its
    ///     bottom edge when it opens upwards, and its top edge when it opens downwards; negative
    ///     means not given, which centres it. It always lies wholly on the screen.
    /// @param DateToShow  any date; without one, or before 1753, the calendar opens on DefaultDate
    /// @param DefaultDate  likewise; without one, the calendar opens on today
    /// @param FormToRefresh  repainted when the calendar ends; owns it while none of the host's
    ///     windows is active; null for none
    /// @param bNeedsConversions  DateToShow may be digits, see ConvertNumberToDate
    /// @return mm/dd/yyyy; empty when the calendar was closed without a choice
    ///
    /// @code{.cpp}
    /// const auto day = utils->ShowCalendar(-1, -1, -1, visit.text());
    /// if (!day.empty()) visit.setText(ToQString(day));
    /// @endcode
    std::u16string ShowCalendar(float posLeft = -1, float posTopUp = -1, float posTopDown = -1,
                                TextIn DateToShow = {}, TextIn DefaultDate = {},
                                const std::shared_ptr<OwnerForm>& FormToRefresh = nullptr,
                                bool bNeedsConversions = false);

    /// ShowCalendar beside a button or cell: left edges aligned, below it when the screen has room,
    /// otherwise above it. The calendar is centred without a target and when the target no longer
    /// exists, which is logged.
    ///
    /// @code{.cpp}
    /// auto day = utils->ShowCalendarAndCalculateCoordinates(Beside(&button), visit.text());
    /// @endcode
    std::u16string ShowCalendarAndCalculateCoordinates(
        const std::shared_ptr<PopupTarget>& CmdButtonOrCell = nullptr, TextIn DateToShow = {},
        TextIn DefaultDate = {}, const std::shared_ptr<OwnerForm>& FormToRefresh = nullptr,
        bool bNeedsConversions = false);

    /// Adds one line to the debug console, a window that stays out of the user's way: it opens
    /// without taking the focus and can be used beside modal dialogs.
    ///
    /// The line is dropped outside debug mode, and without a desktop. The console holds some 30,000
    /// characters; a line that would not fit clears it first. A fault is logged with "Can not
    /// display Debug window".
    void ShowInDebug(TextIn strText);

    /// Lets the user work out an amount on a four-function calculator.
    ///
    /// It works from left to right and shows results with two decimals. A fault beeps and is logged
    /// with "Error in Utils.Calculate ".
    /// @param InitValue  the amount to start from, as a field shows it; a text that is not numeric
    ///     starts the calculator with an empty display
    /// @return what the display shows when the user presses RET, which is "ERROR" after a division
    ///     by zero; empty when the user presses Escape or closes the window
    ///
    /// @code{.cpp}
    /// auto amount = utils->Calculate(field.text());
    /// if (!amount.empty()) field.setText(ToQString(amount));
    /// @endcode
    std::u16string Calculate(TextIn InitValue = {});

    /// The application's name, as given to InitUtils.
    std::u16string AppName() const;
    /// The application's type, as given to InitUtils; stored for the host.
    std::u16string AppType() const;

    /// True in debug mode, which InitUtils switches on: the debug console shows lines, and some
    /// faults show a message.
    bool DBG() const;

    /// Starts the session and makes this object the current one.
    ///
    /// @param ErrFileName  name or path of the error log, with "/" or "\" between folders. A name
    ///     without a folder means a file in the library's own folder; an empty one, "Error.Log".
    /// @param AppName  the title of the library's message boxes
    /// @param AppType,ExeFileStamp  stored for the host
    /// @param DebugMode  true to allow the debug console, and messages about some faults
    void InitUtils(TextIn ErrFileName, TextIn AppName, TextIn AppType, bool DebugMode,
                   TextIn ExeFileStamp);

    /// Stores the palette's colours (decimal texts) and the colours of forms.
    ///
    /// Message boxes in mbSkinColor use FormSkinColor and FormTextColor; FormTopColor and
    /// RequiredFieldBackColor are stored for the host. The palette leaves out the last two colours
    /// of the list, see ShowColor.
    void InitPrefs(const StringArray& ColorArray, Color FormSkinColor, Color FormTextColor,
                   Color FormTopColor, Color RequiredFieldBackColor);

    /// The text colour of the host's forms, as given to InitPrefs.
    Color FormTextColor() const;
    /// The colour of a form's top, as given to InitPrefs; stored for the host.
    Color FormTopColor() const;

    /// Field number `intNum` of a text, from 1; empty when there is no such field, for a number
    /// below 1 and for an empty delimiter. The delimiter may have several characters.
    ///
    /// @code{.cpp}
    /// utils->SplitStr(u"A^B^C", u"^", 2)  // B
    /// @endcode
    std::u16string SplitStr(TextIn strSplit, TextIn delim, std::int16_t intNum) const;

    /// Cuts a text into the elements 1 to n of an array; element 0 stays empty.
    ///
    /// Meant for a delimiter of one character, which ends a field; the last field may end without
    /// one. After a longer delimiter only its first character is skipped: the rest begins the next
    /// field. An empty text gives one empty field.
    /// @return true; false, with the array untouched, only when memory runs out
    ///
    /// @code{.cpp}
    /// utils->StrToArr(u"A|B|", u"|", fields)  // fields: "", A, B
    /// @endcode
    bool StrToArr(TextIn Str, TextIn DEL, StringArray& Arr) const;

    /// How often a text occurs in another, counted from the left without overlap; 0 when the text
    /// searched for is empty.
    std::int32_t CountInstances(TextIn strSearchIn, TextIn strSearchFor) const;

    /// Cuts a long text into pieces of at most ChunkLength characters that end at a delimiter, into
    /// the elements 0 and up of an array.
    ///
    /// If the first piece happens to end in the delimiter without being shortened, it is stored
    /// twice, in elements 0 and 1.
    /// @return true when the pieces hold the whole text. False, with the array untouched, when an
    ///     argument is empty, when the length is below 1, and when the text fits into one piece and
    ///     can be used as it is; false, with the pieces so far, when a piece holds no delimiter. A
    ///     fault beeps, is logged with "ERR in HalvekUtils.ChunkStrToArr   " and gives false.
    ///
    /// @code{.cpp}
    /// utils->ChunkStrToArr(u"AB|CD|EF|", pieces, 4, u"|");  // AB|, CD|, EF|
    /// @endcode
    bool ChunkStrToArr(TextIn Str, StringArray& Arr, std::int32_t ChunkLength, TextIn DEL) const;

    /// Builds a new current codes collection from the server's codes data.
    ///
    /// Records are separated by "|", fields by the character of code 230: description, key, look-up
    /// flag, menu flag, report name and sort order; then, optionally, a second half of the sort
    /// order, the entity-specific flag and the system-code flag. Of two records with the same key,
    /// letter case ignored, the first is kept and the second logged. A collection that the host
    /// still holds stays as it is. A fault is logged with "BuildCodesCollection "; the records read
    /// so far stay.
    ///
    /// @code{.cpp}
    /// utils->BuildCodesCollection(u"Insurance\u00E6INS\u00E61\u00E61\u00E6List\u00E6Name");
    /// utils->GetCodesCollection()->Item(u"ins")->CodeDescription();  // Insurance
    /// @endcode
    void BuildCodesCollection(TextIn CodesData);

    /// The entities that the user may see, as the server sent them; stored for the host.
    void EntityListForUser(TextIn value);
    std::u16string EntityListForUser() const;

    /// Stores the path of the compiled help file (.chm) that the help members open.
    void InitHelp(TextIn FilePath);

    /// The path given to InitHelp; empty before.
    std::u16string HelpFilePath() const;

    /// Opens compiled help at the topic of a context number, in a window of its own that stays open
    /// beside the host's windows and dialogs; a later call uses the same window.
    ///
    /// @param hwnd  not used
    /// @param ContextID  the topic's number in the file
    /// @param HelpFileLocation  the help file, with "/" or "\" between folders; empty for the path
    ///     given to InitHelp
    /// @return false, after a message to the user, when there is no such file. Otherwise true: when
    ///     the file is damaged or not a help file, or the topic is missing, the help window says so
    ///     and the fault is logged.
    bool ShowHelp(std::int32_t hwnd, std::int32_t ContextID, TextIn HelpFileLocation = {});

    /// The same for a topic, given by its path in the help file; empty for the file's first page.
    ///
    /// @code{.cpp}
    /// utils->ShowHelpByTopic(0, u"::/billing/late.htm#fees");
    /// @endcode
    bool ShowHelpByTopic(std::int32_t hwnd, TextIn TopicPath = {}, TextIn HelpFileLocation = {});

    // A currency field is an ordinary text box whose events the host passes to the members below;
    // the OnNeg... members are for amounts that may be negative. While the box has the focus, it
    // holds a bare number of at most 7 digits before the point and 2 after it. Each member logs a
    // fault with "Error in HalvekUtils/Utils/", its own name and two blanks, and then leaves the
    // text as it is. In a Qt host MakeCurrencyField does all of this.

    /// Handles a key before the text box does.
    ///
    /// When all is selected, the box is emptied first. "." in an empty box gives "0."; a second "."
    /// moves the caret after the first. A digit without room moves the caret to the end.
    /// @param ctr  the text box
    /// @param KeyAscii  the key's character code; set to 0 when the box must not insert it, also
    ///     after a fault
    ///
    /// @code{.cpp}
    /// std::int16_t key = u'5';
    /// utils->OnCurrencyCtrKeyPress(box, key);
    /// if (key != 0) ...  // insert it
    /// @endcode
    void OnCurrencyCtrKeyPress(const std::shared_ptr<TextControl>& ctr, std::int16_t& KeyAscii);

    /// Cuts what follows the point to two characters. When it cuts something, the caret goes to the
    /// end.
    void OnCurrencyCtrChange(const std::shared_ptr<TextControl>& ctr);

    /// Removes "$" and the thousands commas, and selects the text; a locked box is only selected.
    /// Used for negative amounts too.
    void OnCurrencyCtrGotFocus(const std::shared_ptr<TextControl>& ctr);

    /// Shows the amount as "$" and the number with thousands commas and two decimals.
    ///
    /// Without a point, a number of nine characters ends in cents, and one of any other length
    /// above seven is cut to seven. A text that is not a number stays as it is and is logged.
    /// @param ctr  the text box
    /// @param Cancel  set to false for an empty box, which stays empty; otherwise not written
    void OnCurrencyCtrValidate(const std::shared_ptr<TextControl>& ctr, bool& Cancel);

    /// The most digits before the point: 7, whatever the system preferences say.
    std::int16_t CURRENCY_NUMDECIMALS() const;

    /// The most digits after the point: 2, whatever the system preferences say.
    std::int16_t CURRENCY_NUMFRACT() const;

    /// OnCurrencyCtrKeyPress for signed amounts: "-" changes the sign and "+" removes it, wherever
    /// the caret stands. Digits and points always go after the sign.
    void OnNegCurrencyCtrKeyPress(const std::shared_ptr<TextControl>& ctr, std::int16_t& KeyAscii);

    /// OnCurrencyCtrChange for signed amounts.
    void OnNegCurrencyCtrChange(const std::shared_ptr<TextControl>& ctr);

    /// OnCurrencyCtrValidate for signed amounts: a negative amount becomes "$-25.00", and "-0.00"
    /// becomes "0.00".
    void OnNegCurrencyCtrValidate(const std::shared_ptr<TextControl>& ctr, bool& Cancel);

    /// Checks that the upper field of a range, when the user leaves it, is not below the lower one.
    ///
    /// If it is, a message says so, the field is emptied and Cancel becomes true. An amount that is
    /// 0, or not a number, passes.
    /// @param ctr  the upper field
    /// @param strMin,strMax  the amounts as their fields show them
    /// @param lblMin,lblMax  what the message calls the two fields
    /// @param Cancel  set to true when the check fails; otherwise not written
    ///
    /// @code{.cpp}
    /// utils->OnCurrencyCtrValidateRange(to, from->Text(), to->Text(), u"From", u"To", cancel);
    /// @endcode
    void OnCurrencyCtrValidateRange(const std::shared_ptr<TextControl>& ctr, TextIn strMin,
                                    TextIn strMax, TextIn lblMin, TextIn lblMax, bool& Cancel);

    /// True for a key that opens a look-up: the LookupKey or LookupKey1 of the current system
    /// preferences, of which only the low 16 bits count. Throws ObjectNotSet without preferences.
    bool IsLookupKey(std::int16_t CodeKey) const;

    /// "1" for the LookupKey, otherwise "2" for the LookupKey1, and an empty text for any other
    /// key. Throws ObjectNotSet without preferences.
    std::u16string ConvertLookupKeyToSearchBy(std::int16_t CodeKey) const;

    /// ShowColor beside a button or cell: left edges aligned, below it when the screen has room,
    /// otherwise above it. The palette is centred without a target and when the target no longer
    /// exists, which is logged.
    ///
    /// @code{.cpp}
    /// auto chosen = utils->ShowColorAndCalculateCoordinates(Beside(&button));
    /// @endcode
    std::u16string ShowColorAndCalculateCoordinates(
        const std::shared_ptr<PopupTarget>& CmdButtonOrCell = nullptr,
        const std::shared_ptr<OwnerForm>& FormToRefresh = nullptr);

    /// Lets the user choose one of the colours given to InitPrefs.
    ///
    /// The palette shows entry 1 and, from entry 2 to the last but two, those above -1. A fault,
    /// such as a missing entry 1, beeps and is logged with "Error in Utils.ShowColor ".
    /// @param posLeft,posTopUp,posTopDown  twips on the screen: the palette's left edge, its
    ///     bottom edge when it opens upwards, and its top edge when it opens downwards; negative
    ///     means not given, which centres it. It always lies wholly on the screen.
    /// @param FormToRefresh  repainted when the palette ends; owns it while none of the host's
    ///     windows is active; null for none
    /// @return the colour, a tab and its index in the list; empty when the user chose none
    ///
    /// @code{.cpp}
    /// utils->ShowColor(left, top, bottom)  // 255<TAB>7
    /// @endcode
    std::u16string ShowColor(float posLeft = -1, float posTopUp = -1, float posTopDown = -1,
                             const std::shared_ptr<OwnerForm>& FormToRefresh = nullptr);

    /// ShowSelection beside a button or cell; see ShowSelectionGridAndCalculateCoordinates.
    std::u16string ShowSelectionAndCalculateCoordinates(
        TextIn ListName, TextIn AllValues, TextIn SelectedValues = {},
        const std::shared_ptr<PopupTarget>& CmdButtonOrCell = nullptr,
        const std::shared_ptr<OwnerForm>& FormToRefresh = nullptr,
        ByRef<std::u16string> TypedCharacter = std::u16string());

    /// ShowSelectionGrid beside a button or cell: right edges aligned, below it when the screen has
    /// room, otherwise above it.
    ///
    /// All other arguments are those of ShowSelectionGrid. A cell's target knows its grid, so there
    /// is no argument for the grid. The dialog is centred without a target and when the target no
    /// longer exists, which is logged.
    ///
    /// @code{.cpp}
    /// auto chosen = utils->ShowSelectionGridAndCalculateCoordinates(
    ///     u"Providers", server.providers(), row.codes(), Beside(&view, index));
    /// @endcode
    std::u16string ShowSelectionGridAndCalculateCoordinates(
        TextIn ListName, TextIn AllValues, TextIn SelectedValues = {},
        const std::shared_ptr<PopupTarget>& CmdButtonOrCell = nullptr,
        const std::shared_ptr<OwnerForm>& FormToRefresh = nullptr,
        ByRef<std::u16string> TypedCharacter = std::u16string(), bool DoNotIncludeDeleted = false);

    /// Lets the user choose codes from a list of the server's; deleted entries show in red.
    ///
    /// The same as ShowSelectionGrid, which can also leave out deleted entries.
    std::u16string ShowSelection(TextIn ListName, TextIn AllValues, TextIn SelectedValues = {},
                                 float posLeft = -1, float posTopUp = -1, float posTopDown = -1,
                                 const std::shared_ptr<OwnerForm>& FormToRefresh = nullptr,
                                 ByRef<std::u16string> TypedCharacter = std::u16string());

    /// Lets the user choose codes from a list of the server's.
    ///
    /// If the list lacks codes of SelectedValues, a message names each before the dialog opens.
    /// @param ListName  plain text, the dialog's caption
    /// @param AllValues  entries separated by ":", a header first. TABs separate the fields of an
    ///     entry: its code, its description and, last, "1" when it is deleted
    /// @param SelectedValues  the codes chosen so far, separated by ","
    /// @param posLeft,posTopUp,posTopDown  twips on the screen: the dialog's right edge, its
    ///     bottom edge when it opens upwards, and its top edge when it opens downwards; negative
    ///     means not given, which centres it. It always lies wholly on the screen.
    /// @param FormToRefresh  repainted when the dialog ends; owns it while none of the host's
    ///     windows is active; null for none
    /// @param TypedCharacter  what the user has typed already; goes into the box of codes, and the
    ///     variable is cleared
    /// @param DoNotIncludeDeleted  true to leave out deleted entries; otherwise they show in red
    /// @return the chosen codes, separated by ","; "CANCEL" after OK without a change;
    ///     SelectedValues unchanged after Cancel, Escape and the close box, and, after a message,
    ///     when AllValues is empty. A fault is logged with "ShowSelectionGridForm error " and gives
    ///     what was ticked so far, which is nothing when it came before the dialog was made.
    ///
    /// @code{.cpp}
    /// auto chosen = utils->ShowSelectionGrid(u"Providers", server.providers(), u"A1,B2");
    /// if (chosen != u"CANCEL") visit.setProviders(chosen);
    /// @endcode
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

#include <halvekutils/base/XlibOn.h>
