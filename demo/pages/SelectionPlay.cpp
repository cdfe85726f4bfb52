// SPDX-License-Identifier: MIT
#include "pages/SelectionPlay.h"

#include "pages/SelectionPage.h"
#include "tour/Tour.h"

#include <QLineEdit>
#include <QScreen>

#include <stdexcept>
#include <utility>
#include <vector>

namespace frontdesk {

namespace {

const char* const kBox = "txtSelect";
const char* const kGrid = "grdSelection";

constexpr int kEntriesInBand = 10;

/// Clicks an entry, counted from the one that stands for all codes as 1.
TourStep ClickEntry(int entry) {
    return ClickCell(kGrid, (entry - 1) / kEntriesInBand, (entry - 1) % kEntriesInBand);
}

TourStep PressOk() {
    return Click("cmdOK");
}

TourStep Escape() {
    return PressKey(kBox, Qt::Key_Escape);
}

QString BoxText(QWidget& dialog) {
    const auto* box = dialog.findChild<QLineEdit*>(kBox);
    return box == nullptr ? QString() : box->text();
}

class SelectionPlay {
  public:
    SelectionPlay(SelectionPage& page, Tour& tour) : page_(page), tour_(tour) {}

    void Choices();
    void Refusals();
    void Lists();
    void Openings();
    void Corners();

  private:
    SelectionArguments List(const QString& name) const;
    SelectionArguments List(const QString& name, const QString& selected) const;

    void Choose(const QString& name, const SelectionArguments& arguments,
                std::vector<TourStep> steps, const QString& expected);
    TourStep BoxHolds(const QString& text);
    TourStep IsOnScreen();
    void ChooseAt(const QString& name, const QPoint& button);

    SelectionPage& page_;
    Tour& tour_;
};

SelectionArguments SelectionPlay::List(const QString& name) const {
    for (const SelectionSample& sample : page_.Samples()) {
        if (sample.name == name) return sample.arguments;
    }
    throw std::logic_error(("there is no list " + name).toStdString());
}

SelectionArguments SelectionPlay::List(const QString& name, const QString& selected) const {
    SelectionArguments arguments = List(name);
    arguments.selected = selected;
    return arguments;
}

void SelectionPlay::Choose(const QString& name, const SelectionArguments& arguments,
                           std::vector<TourStep> steps, const QString& expected) {
    page_.Enter(arguments);
    QString chosen;
    tour_.Answer(name, std::move(steps), [&] { chosen = page_.Choose(); });
    tour_.Expect(chosen == expected, name + " gave " + Shown(chosen) + ", not " + Shown(expected));
}

TourStep SelectionPlay::BoxHolds(const QString& text) {
    return tour_.Check("the box holds " + text,
                       [=](QWidget& dialog) { return BoxText(dialog) == text; });
}

TourStep SelectionPlay::IsOnScreen() {
    return tour_.Check("the list lies on the screen", [](QWidget& dialog) {
        return dialog.screen()->availableGeometry().contains(dialog.frameGeometry());
    });
}

void SelectionPlay::Choices() {
    const SelectionArguments insurance = List("Insurance Types");
    Choose("selection-typical", insurance,
           {tour_.Snapshot("selection-typical"), ClickEntry(4), BoxHolds("MB,MG,MC"),
            PressKey(kGrid, Qt::Key_Down), PressKey(kGrid, Qt::Key_Space), BoxHolds("MB,MG,MC,CH"),
            ClickEntry(2), tour_.Snapshot("selection-ticked"), PressOk()},
           "MG,MC,CH");
    Choose("selection-typed", insurance,
           {TypeText(kBox, ",WC,SP,"), tour_.Snapshot("selection-typed"),
            PressKey(kBox, Qt::Key_Return)},
           "MB,MG,WC,SP");
    Choose("selection-all", insurance,
           {ClickEntry(1), tour_.Snapshot("selection-all"), ClickHeading(kGrid)},
           AllCodes(insurance.allValues));
    Choose("selection-cleared", insurance,
           {PressKey(kBox, Qt::Key_A, Qt::ControlModifier), PressKey(kBox, Qt::Key_Delete),
            tour_.Snapshot("selection-cleared"), PressOk()},
           "");
    Choose("selection-unchanged", insurance, {PressOk()}, "CANCEL");
    Choose("selection-escape", insurance, {ClickEntry(5), Escape()}, "MB,MG");
    Choose("selection-closed", insurance, {ClickEntry(5), CloseWindow()}, "MB,MG");
    Choose("selection-cancel", insurance, {ClickEntry(5), Click("cmdExit")}, "MB,MG");
}

void SelectionPlay::Refusals() {
    const SelectionArguments insurance = List("Insurance Types", "MB");
    const struct {
        const char* name;
        const char* typed;
        bool pressesOk;
    } refused[] = {
        {"selection-unknown-code", ",QQ", true},
        {"selection-invalid-entry", ",,", false},
        {"selection-forbidden-character", "|", true},
        {"selection-duplicates", ",MC,MC", true},
    };
    for (const auto& each : refused) {
        const QString name = each.name;
        std::vector<TourStep> steps = {TypeText(kBox, each.typed)};
        if (each.pressesOk) steps.push_back(PressOk());
        // The message lies on top of the list until its button is pressed.
        steps.insert(steps.end(), {tour_.Snapshot(name), Click("arrCmd_0"),
                                   tour_.Snapshot(name + "-box"), Escape()});
        Choose(name, insurance, std::move(steps), "MB");
    }
    Choose("selection-unknown-chosen", List("Insurance Types", " MB , QQ, it's"),
           {tour_.Snapshot("selection-unknown-chosen"), Click("arrCmd_0"),
            tour_.Snapshot("selection-unknown-apostrophe"), Click("arrCmd_0"), BoxHolds("MB"),
            Escape()},
           " MB , QQ, it's");
    Choose("selection-incomplete", List("Nothing from the server"),
           {tour_.Snapshot("selection-incomplete"), Click("arrCmd_0")}, "25,59");
}

void SelectionPlay::Lists() {
    const std::pair<const char*, const char*> lists[] = {
        {"Providers", "selection-deleted-entries"},
        {"Places of Service", "selection-places"},
        {"Authorizations", "selection-long-codes"},
        {"Billing Entities", "selection-one-entry"},
        {"Signature on File", "selection-two-entries"},
        {"A list without entries", "selection-no-entry"},
    };
    for (const auto& [list, name] : lists) {
        Choose(name, List(list), {tour_.Snapshot(name), IsOnScreen(), PressOk()}, "CANCEL");
    }
    SelectionArguments active = List("Providers");
    active.doNotIncludeDeleted = true;
    Choose("selection-without-deleted", active,
           {tour_.Snapshot("selection-without-deleted"), PressOk()}, "CANCEL");

    const SelectionArguments huge = HugeSelection();
    Choose(
        "selection-100000-entries", huge,
        {tour_.Snapshot("selection-100000-entries"), PressKey(kGrid, Qt::Key_End),
         tour_.Snapshot("selection-100000-entries-end"), PressKey(kGrid, Qt::Key_Space), PressOk()},
        huge.selected.left(huge.selected.lastIndexOf(',')));
    Choose("selection-100000-ticked", huge, {ClickEntry(1), PressOk()}, AllCodes(huge.allValues));
}

void SelectionPlay::Openings() {
    SelectionArguments locations = List("Locations");
    for (const auto& member : kSelectionMembers) {
        const QString name = QString("selection-by-") + member.name;
        locations.member = member.value;
        page_.Enter(locations);
        page_.EnterPositions();
        locations = page_.Entered();
        Choose(name, locations, {IsOnScreen(), ClickEntry(6), PressOk()}, "NC,XR");
    }
    page_.Enter(List("Locations"));
    QString chosen;
    tour_.Answer("selection-opened-by-typing",
                 {tour_.Snapshot("selection-opened-by-typing"), BoxHolds("NC,S"),
                  TypeText(kBox, "C,"), BoxHolds("NC,SC,"), PressKey(kBox, Qt::Key_Return)},
                 [&] { chosen = page_.TypeIntoCodes('S'); });
    tour_.ExpectResult("selection-opened-by-typing", chosen, "NC,SC");
    tour_.Expect(page_.Entered().typed.isEmpty(), "the typed character is used up");
}

void SelectionPlay::ChooseAt(const QString& name, const QPoint& button) {
    QWidget& window = *page_.window();
    QWidget& target = page_.Target();
    const QPoint before = window.pos();
    window.move(before + button - target.mapToGlobal(target.rect().bottomRight()));
    Choose(name, List("Insurance Types"),
           {IsOnScreen(),
            tour_.Check("the list does not hide the button",
                        [&](QWidget& dialog) {
                            const QRect rect(target.mapToGlobal(QPoint()), target.size());
                            return !dialog.frameGeometry().intersects(rect);
                        }),
            PressOk()},
           "CANCEL");
    window.move(before);
}

void SelectionPlay::Corners() {
    const QRect screen = page_.screen()->availableGeometry();
    ChooseAt("selection-at-bottom-right", screen.bottomRight());
    ChooseAt("selection-at-top-left", screen.topLeft() + page_.Target().rect().bottomRight());
}

}  // namespace

void PlaySelections(SelectionPage& page, Tour& tour) {
    SelectionPlay play(page, tour);
    play.Choices();
    play.Refusals();
    play.Lists();
    play.Openings();
    play.Corners();
}

}  // namespace frontdesk
