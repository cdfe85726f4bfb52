#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Goes through every page and every dialog of the demo client by keys alone.
# Usage: keys_tour.sh DEMO openbox|icewm SCALE light|dark
set -u
source "$(dirname "$0")/desktop.sh"
export LC_ALL=C  # weeks start on Monday
look=$2-$3-$4
pictures=100  # so that their names sort

# Whether the client has noted a text since the mark.
is_noted() {
    grep -qF -- "$1" <(tail -n +"$((answered + 1))" "$record")
}
# Whether another window than the client's is active, whose title starts with a text; that of a help
# page ends with it.
has_opened() {
    local title
    title=$(xdotool getactivewindow getwindowname 2>/dev/null)
    [[ "$title" == "$1"* || "$title" == *" - $1" ]] && ! is_active "$main"
}
# The whole screen, as the display keeps it in memory.
screen_sum() {
    cksum <"$work/Xvfb_screen0"
}
# Whether the screen is the same as at the last call: everything is painted.
is_resting() {
    local before=$seen
    seen=$(screen_sum)
    [ "$seen" = "$before" ]
}
looks_changed() {
    [ "$(screen_sum)" != "$seen" ]
}

# Presses keys and waits for what they do. Usage: step KEYS SIGN TEXT. The signs:
#   >  a window opens, or comes back, whose title starts with the text
#   =  the client notes a line with the text and is active again
#   @  a control of that place and name has the focus
#   <  the client is active again
#   ~  the screen changes
#   .  nothing more
# Keys that follow a menu wait until it has closed: the display may still send them to it.
step() {
    local keys=$1 sign=$2 text=${3:-}
    answered=$(wc -l <"$record")
    focused=$(wc -l <"$focus")
    seen=""
    [ "$sign" != "~" ] || wait_until "the screen rests" is_resting
    keys ${keys//,/ }
    case $sign in
    '>') wait_until "$keys opens $text" has_opened "$text" ;;
    '=') wait_until "$keys is noted: $text" is_noted "$text" ;;
    '@') wait_until "$keys leads to $text" has_focus "$text" ;;
    '~') wait_until "$keys changes the screen" looks_changed ;;
    esac
    case $sign in
    '=' | '<') wait_until "$keys leads back to the client" is_active "$main" ;;
    '>' | '@' | '~') picture "$look-$((++pictures))" ;;
    esac
}
# Takes steps from lines; " ; " separates several in one line.
steps() {
    local keys sign text
    while read -r keys sign text; do
        [ "$keys" = "#" ] || step "$keys" "$sign" "$text"
    done < <(sed 's/ ; /\n/g')
}

# Goes from the list of pages through every control of a page and back. Usage: walk PAGE_TITLE
walk() {
    local place count reached
    focused=$(wc -l <"$focus")
    keys Tab
    wait_until "$1 has a control" focus_moved
    place=$(tail -n 1 "$focus")
    count=${place#*/}
    count=${count%%:*}
    for ((i = 0; i < count + 2; i++)); do printf 'Tab '; done | xargs xdotool key
    wait_until "Tab leads through $1" has_focus "Services"
    reached=$(tail -n +"$((focused + 1))" "$focus" | grep -o '[0-9]*/[0-9]*:' | sort -u | wc -l)
    [ "$reached" = "$count" ] || fail "Tab reaches $reached of $count controls of $1"
}

# Shows the sample of a message box. Usage: open_box NUMBER TITLE
open_box() {
    local downs
    printf -v downs "%*s" "$1" ""
    step "alt+e,Home${downs// /,Down}" .
    step alt+w ">" "$2"
}

case $3 in
1) start_desktop "$2" 1366x768 1 ;;
2) start_desktop "$2" 2732x1536 2 ;;
esac
start_client "$1" --palette "$4"
wait_until "the list of pages has the focus" has_focus "Front Desk: Services"

for page in Session Codes "Delimited text" "Data bins" "Error log" "Message box" "Selection list" \
    "Character filter" Rights Printers Settings "Open windows" Reminders Dates Calculator \
    "Keys and controls" Colours "Debug console" "Compiled help" Payment; do
    walk "$page"
    picture "$look-page-${page// /-}"
    keys Down
done

# The pages without dialogs: every button by its letter
steps <<'ROWS'
alt+s,s @ Services ; alt+i = InitUtils( ; alt+p = InitPrefs( ; alt+o = InitOtherSettings(
alt+t = AppDataFolderCommon( ; alt+a = AppDataFolderCommon() =
alt+s,c @ Services ; alt+k,ctrl+a,l,n,g,Return = codes->Item("lng") = "Languages
alt+k,ctrl+a,n,o,alt+l = fault 5, Invalid argument: no ; alt+r = GetCodesCollection() = null
alt+b = GetCodesCollection()->Count() = 56
alt+s,d @ Services ; alt+i = SplitStr("Visit^Provider^Room", "^", 2) = "Provider"
alt+t = (0 to 3) "", "INS", "REF", "PRV" ; alt+k = ChunkStrToArr(
alt+o = CountInstances("a,b,,c", ",") = 3 ; alt+l = left "Room", right "12"
alt+s,b @ Services ; alt+a = AddBin("visit", "03/07/2004|Room 12", "text")
alt+g = GetBinData("visit") = "03/07/2004|Room 12" ; alt+e = BinExists("visit") = true
alt+r = RemoveBin("visit") ; alt+c = ClearAllBins()
alt+s,e @ Services ; alt+m,ctrl+a,p,a,p,e,r,alt+l = error log: paper ; alt+d,ctrl+a ~ ; alt+r ~
alt+s,r @ Services ; alt+k,ctrl+a,u,s,e,r,s,alt+l = rights->Item("users") = no rights
alt+p = SpecialMode("check security") ; alt+p = SpecialMode("")
alt+a = BuildSecurityCollection("***") ; alt+r = ClearSecurityCollection()
alt+b = BuildSecurityCollection("PATIENTS
alt+s,p @ Services ; alt+k,End,alt+r = ClearPrintersCollection() ; alt+b = format is invalid for item 6
alt+i = GetPrintersCollectionFiltered(true, false, false, false)
alt+p = GetPrintersCollectionFiltered(false, false, false, false)
alt+e = GetPrintersCollectionFiltered(false, true, false, false)
alt+w = GetPrintersCollectionFiltered(false, true, true, false)
alt+l = GetPrintersCollectionFiltered(false, true, true, true) = Printers: 1
alt+s,t @ Services ; alt+c = SetCurrentUserPrefs(prefs) ; alt+e = GetCurrentUserPrefs() =
alt+g = prefs.GetSettingsString() = ; alt+p = prefs.PopulateSettings(
alt+o = GetCurrentSystemPrefs()->LookupKey() = 113
alt+s,k @ Services ; alt+g = HighlightHeading("each control", false, 1)
alt+t = UnhighlightHeading(each control, true) ; alt+l = FillCombo(
alt+d = FindInCombo(the box, "baker", true, false) = 1
alt+p = SetFontProperties(the label, "Tahoma", 7) = true
alt+k = IsLookupKey, ConvertLookupKeyToSearchBy(113) = true, "1" ; alt+e = Sleep(250)
alt+o > No close button ; Return = QDialog::exec() ; alt+u @ : What the library returned ; alt+y ~
alt+h,a > Front Desk ; Return <
ROWS

# Message boxes: each set of buttons by a key, the long text, the countdown
step alt+s,m @ Services
set=0
while read -r title keys result; do
    open_box $((set++)) "$title"
    step "$keys" = " = $result"
done <<'ROWS'
Appointments Return 1 (mbOK)
Statements Tab,space 2 (mbCancel)
Claims Escape,i 5 (mbIgnore)
Visits Escape 2 (mbCancel)
Visits Escape,alt+n 7 (mbNo)
Accounts shift+Tab,Return 2 (mbCancel)
Referrals d 9 (mbDontSave)
Recalls Escape 1 (mbOK)
Insurance h 10 (mbHelp)
Patients Tab,Tab,Return 10 (mbHelp)
Charges alt+F4 1 (mbOK)
ROWS
open_box 11 Visits
steps <<'ROWS'
End ~
Home ~
Next ~
Escape = = 2 (mbCancel)
ROWS
open_box 16 "Schedule          00:00:01"
steps <<'ROWS'
x,Return = = 1 (mbOK)
alt+c,ctrl+a,1 .
alt+w = = 99 (kClosedByCountdown)
ROWS

# The other dialogs
steps <<'ROWS'
# Codes typed, ticked, refused, deleted ones left out
alt+s,l @ Services ; alt+i,End,Home,alt+c . ; Return > Insurance Types    [Total: 28] ; comma,W,C,comma ~
Tab,Home,Right,Right,space ~ ; Down,space ~ ; Tab,Tab ~ ; shift+Tab,space = = "MB,MG,WC,MA,AM"
alt+c,Return > Insurance Types ; comma,Q,comma > Front Desk ; Return > Insurance Types
Escape = ShowSelection
alt+c,Return > Insurance Types ; comma,comma > Invalid Entry ; Return > Insurance Types
alt+a = ShowSelection
alt+t,Tab @ Do not include deleted entries ; space,alt+c,S > Insurance Types    [Total: 25]
P,comma,T,V ~
alt+o = = "MB,MG,WC,MA,AM,SP,TV"
alt+c,Tab,space > Insurance Types ; alt+F4 = ShowSelectionGrid
# A message names a forbidden character
alt+s,f @ Services ; alt+p = RemoveUnprintableChars("line one\r\nline two\tand a tab") = "line one<13>
alt+a = IsAlpha("Smith") = true
alt+c = IsUnwantedChar(124) = true
alt+d = IsDateChar(47) = true
alt+w = = true, strOUT "SmithJonessince 2004"
alt+s,f @ Services ; Tab,Tab,Tab,Tab @ Show message ; space,alt+w > Front Desk
Return = RemoveUnwantedChars("Smith|Jones\tsince 2004", "", true, false, "") = true
# Windows by the menu and by the page
alt+s,w @ Services ; alt+p > Patient 1 ; alt+Tab <
alt+r > Report 2 ; alt+Tab <
alt+n ~ ; 1 > Patient 1 ; alt+Tab <
alt+c > Schedule 3 ; alt+F4 = OpenWindows()->RemoveItem(3) = true
alt+s,w @ Services ; Tab,Tab,Tab,Tab @ Open windows ; Down,alt+g = OpenWindows()->GetItem(
alt+b > Report 2 ; alt+F4 = OpenWindows()->RemoveItem(2) = true
alt+s,w @ Services ; Tab,Tab,Tab,Tab,Home,alt+l = OpenWindows()->RemoveItem(1) = true
# Reminders
alt+s,i @ Services ; alt+a,Home,alt+o > Reminders of account 10117 ; Right ~ ; Tab ~ ; Escape <
alt+a,Down,alt+o > Reminders of account 10204 ; Tab,Tab,space <
# Days
alt+s,a @ Services ; alt+c = ConvertHDate("60000,43200") = "04/10/2005 12:00:00 PM"
alt+t = ConvertNumberToDate("3/5/2024", false) = "03052024"
alt+i = InitServerTime("11:59:30 PM")
alt+r = ServerTime() =
alt+v,Return > ; Next,ctrl+Prior,Right ~ ; Return = ) = "04/08/2003"
alt+x,Return > ; Tab ~ ; Return = ShowCalendar(
alt+b,Tab,space > ; End,Escape = "1/1/1980", the window, true) = ""
# Amounts
alt+s,u @ Services ; alt+m,Home,alt+a,Return > Calculator ; 1,2,plus,3,equal ~
Tab,ctrl+a,7,slash,2,Return ~ ; Return = Calculate("$1,234.50") = "3.5"
alt+a,Tab,space > Calculator ; Delete,slash,0,equal ~ ; Escape = Calculate("3.5") = ""
# Colours
alt+s,o @ Services ; alt+b > Color Palette ; Down,Right ~ ; space = = "11842808\t8"
alt+c > Color Palette
End,Tab,Tab,Return = ShowColorAndCalculateCoordinates(the cell, the window) = "
alt+m > Color Palette ; Escape = ShowColor(-1, -1, -1, the window) = ""
# The debug console
alt+s,g @ Services ; alt+d = , true, "2.4.1")
alt+i = ShowInDebug(
alt+t = ShowInDebug("Line 1 to 1000")
alt+Tab > DEBUG ; ctrl+f @ DEBUG: Find ; 9,9,9 ~ ; Escape @ DEBUG: Debug lines
Tab @ DEBUG: STOP logging ; space ~ ; space ~ ; Tab @ DEBUG: All goes to file
Tab @ DEBUG: Keep on top ; Tab @ DEBUG: Clear ; space ~ ; Tab @ DEBUG: Save to File
Tab @ DEBUG: Kill log file ; F7,alt+F4 <
alt+c = ClearDebug()
alt+d = , false, "2.4.1")
# Help: contents, history, find, size
alt+s,h @ Services ; F1 > Front Desk Help ; Tab,Tab,Return ~ ; alt+Left ~ ; alt+Right ~ ; shift+F3 ~
c,o,d ~ ; Escape ~ ; ctrl+plus,ctrl+plus ~ ; ctrl+0 ~ ; F9 ~ ; ctrl+w <
alt+p > Front Desk Help ; alt+F4 <
alt+l,Down,alt+b > Front Desk ; Return <
alt+l,Home,alt+b > Front Desk Help ; ctrl+w <
# Currency fields of both kinds, a range and a payment
alt+s,y @ Services ; alt+a,1,2,3,4,period,5,6,7,Tab = OnCurrencyCtrValidate("1234.56") = "$1,234.56"
2,5,minus,Tab = OnNegCurrencyCtrValidate("-25") = "$-25.00"
5,0,Tab = OnCurrencyCtrValidate("50") = "$50.00"
2,0,Tab > Front Desk ; Return <
6,0,Tab = OnCurrencyCtrValidate("60") = "$60.00"
alt+p > Payment ; y = ShowMsgBox("Post $1,234.56 with an adjustment of $-25.00?") = mbYes
alt+f,q .
ROWS
client=${started[-1]}
wait_until "the client ends" has_ended "$client"
wait "$client" || fail "the client ended with $?"
finish
