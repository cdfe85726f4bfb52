// SPDX-License-Identifier: MIT
#include "pages/HelpersPage.h"

#include "Shown.h"
#include "tour/Tour.h"
#include "widgets/Fields.h"
#include "widgets/Table.h"

#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>

#include <QDialog>
#include <QGridLayout>
#include <QToolButton>

#include <cstddef>
#include <cstdint>

namespace frontdesk {

using namespace halvek;

namespace {

constexpr int kReadKeysEvery = 40;  // milliseconds
constexpr int kGridCodes = 9;
constexpr int kGridHeight = 96;
constexpr int kGroupSpacing = 12;
constexpr int kComboWidth = 220;
constexpr int kManyItems = 100'000;
constexpr char kProviders[] = "Dr. Adams:Dr. Baker:Dr. Clark:Nurse Yilmaz";

struct HeldKey {
    const char* name;
    const char* member;
    bool (Utils::*isPressed)() const;
};

constexpr HeldKey kHeldKeys[] = {
    {"Shift", "ShiftPressed", &Utils::ShiftPressed},
    {"Alt", "AltPressed", &Utils::AltPressed},
    {"Ctrl", "CtrlPressed", &Utils::CtrlPressed},
};

CallBox* MakeFill(Desk& desk, QComboBox& combo) {
    return new CallBox(
        "Fill the combo box", "Fi&llCombo", {{"Items", kProviders}, {"Widen", false}},
        [&](const QVariantList& arguments) {
            const QString items = arguments[0].toString();
            const bool widen = arguments[1].toBool();
            QString result = Shown(desk.Library().FillCombo(items, AsComboBox(&combo), widen));
            desk.Calls().Add("FillCombo", {Shown(items), "the box", Shown(widen)}, result);
            return result;
        });
}

CallBox* MakeFind(Desk& desk, QComboBox& combo) {
    return new CallBox(
        "Choose an entry", "Fin&dInCombo",
        {{"Text", "baker"}, {"Part", true}, {"Match case", false}},
        [&](const QVariantList& arguments) {
            const QString text = arguments[0].toString();
            const bool part = arguments[1].toBool();
            const bool matchCase = arguments[2].toBool();
            QString result =
                Shown(desk.Library().FindInCombo(AsComboBox(&combo), text, part, matchCase));
            desk.Calls().Add("FindInCombo", QStringList("the box") + Args(text, part, matchCase),
                             result);
            return result;
        });
}

CallBox* MakeFont(Desk& desk, QLabel& sample) {
    return new CallBox(
        "A font of at least a size", "SetFont&Properties", {{"Font", "Tahoma"}, {"Size", "7"}},
        [&](const QVariantList& arguments) {
            const QString name = arguments[0].toString();
            const float size = arguments[1].toFloat();
            const bool reached = desk.Library().SetFontProperties(FontOf(&sample), name, size);
            QString result =
                QString("%1, %2 points").arg(Shown(reached)).arg(FontOf(&sample)->Size());
            desk.Calls().Add("SetFontProperties",
                             {"the label", Shown(name), Shown(static_cast<double>(size))}, result);
            return result;
        });
}

QString SearchBy(Utils& library, std::int16_t key) {
    try {
        return Shown(library.IsLookupKey(key)) + ", " +
               Shown(library.ConvertLookupKeyToSearchBy(key));
    } catch (const RuntimeError& fault) {
        return ToQString(fault.Description());
    }
}

CallBox* MakeLookup(Desk& desk) {
    return new CallBox(
        "A key that opens a look-up", "IsLoo&kupKey", {{"Code", 113}},
        [&desk](const QVariantList& arguments) {
            const int code = arguments[0].toInt();
            QString result = SearchBy(desk.Library(), static_cast<std::int16_t>(code));
            desk.Calls().Add("IsLookupKey, ConvertLookupKeyToSearchBy", Args(code), result);
            return result;
        });
}

CallBox* MakeSleep(Desk& desk) {
    return new CallBox("A pause", "Sl&eep", {{"Milliseconds", 250}},
                       [&desk](const QVariantList& arguments) {
                           const int time = arguments[0].toInt();
                           desk.Library().Sleep(time);
                           desk.Calls().Add("Sleep", Args(time));
                           return QString("over");
                       });
}

QTableWidget* MakeVisits() {
    auto* grid = new QTableWidget(0, 3);
    StyleAsList(*grid);
    grid->setAccessibleName("Visits");
    grid->setHorizontalHeaderLabels({"Code", "Procedure", "Fee"});
    AddTableRow(*grid, {"99213", "Office visit", "$95.00"});
    AddTableRow(*grid, {"90471", "Immunization", "$28.50"});
    grid->horizontalHeader()->setStretchLastSection(true);
    grid->setFixedHeight(kGridHeight);
    return grid;
}

}  // namespace

HelpersPage::HelpersPage(Desk& desk)
    : Page("&Keys and controls",
           "Helpers for a screen's controls and its window, and the keys that are held down."),
      desk_(desk),
      grid_(MakeVisits()),
      fill_(MakeFill(desk, combo_)),
      find_(MakeFind(desk, combo_)),
      font_(MakeFont(desk, sample_)),
      lookup_(MakeLookup(desk)),
      sleep_(MakeSleep(desk)) {
    auto* columns = new QGridLayout;
    columns->addWidget(MakeHeadings(), 0, 0);
    columns->addWidget(MakeGrid(), 0, 1);
    columns->addWidget(MakeKeys(), 1, 0);
    columns->addWidget(MakeCombo(), 1, 1, 2, 1);
    columns->addWidget(MakeFontCall(), 2, 0);
    columns->addWidget(MakeCalls(), 3, 0, 1, 2);
    columns->setColumnStretch(0, 1);
    columns->setColumnStretch(1, 1);
    columns->setSpacing(kGroupSpacing);
    Body().addLayout(columns);
    Body().addStretch();
    readKeys_.setInterval(kReadKeysEvery);
    connect(&readKeys_, &QTimer::timeout, this, [this] { ReadKeys(); });
}

QWidget* HelpersPage::MakeHeadings() {
    auto* form = new QGridLayout(&headings_);
    provider_.setMargin(2);
    provider_.setBuddy(&providerText_);
    providerText_.setAccessibleName("Provider");
    form->addWidget(&provider_, 0, 0);
    form->addWidget(&providerText_, 0, 1);
    form->addWidget(&interpreter_, 1, 0);
    form->addWidget(&byLetter_, 1, 1);
    interpreter_.setChecked(true);
    border_.setChecked(true);
    useBlack_.setChecked(true);
    auto* box = new QGroupBox("Captions of fields");
    auto* rows = new QGridLayout(box);
    rows->addWidget(&headings_, 0, 0, 1, 2);
    rows->addWidget(MakeButton("Hi&ghlightHeading", [this] { Highlight(); }), 1, 0);
    rows->addWidget(&border_, 1, 1);
    rows->addWidget(MakeButton("Unhighligh&tHeading", [this] { Unhighlight(); }), 2, 0);
    rows->addWidget(&useBlack_, 2, 1);
    return box;
}

QWidget* HelpersPage::MakeKeys() {
    auto* row = new QHBoxLayout(&keys_);
    for (std::size_t i = 0; i < keyNames_.size(); ++i) {
        keyNames_[i].setText(kHeldKeys[i].name);
        keyNames_[i].setAlignment(Qt::AlignCenter);
        row->addWidget(&keyNames_[i]);
    }
    auto* box = new QGroupBox("Keys that are held now");
    auto* rows = new QVBoxLayout(box);
    rows->addWidget(&keys_);
    return box;
}

QWidget* HelpersPage::MakeGrid() {
    auto* box = new QGroupBox("The nine fonts of a grid");
    auto* rows = new QVBoxLayout(box);
    auto* codes = new QHBoxLayout;
    for (int i = 0; i < kGridCodes; ++i) {
        const QString code = QString::number(i);
        auto* button = new QToolButton;
        button->setText(code);
        button->setAccessibleName("Grid font " + code);
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::clicked, this, [this, code] { SetGridFont(code); });
        codes->addWidget(button);
    }
    rows->addWidget(grid_);
    rows->addLayout(codes);
    return box;
}

QWidget* HelpersPage::MakeCombo() {
    combo_.setAccessibleName("Provider");
    combo_.setMinimumWidth(kComboWidth);
    auto* box = new QWidget;
    auto* rows = new QVBoxLayout(box);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(kGroupSpacing);
    auto* line = new QHBoxLayout;
    line->addWidget(new QLabel("A combo box"));
    line->addWidget(&combo_);
    line->addStretch();
    rows->addLayout(line);
    rows->addWidget(fill_);
    rows->addWidget(find_);
    return box;
}

QWidget* HelpersPage::MakeFontCall() {
    auto* box = new QWidget;
    auto* rows = new QVBoxLayout(box);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(font_);
    rows->addWidget(&sample_);
    return box;
}

QWidget* HelpersPage::MakeCalls() {
    auto* calls = new QWidget;
    auto* row = new QHBoxLayout(calls);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGroupSpacing);
    row->addWidget(lookup_);
    row->addWidget(sleep_);
    row->addWidget(
        MakeButton("Open a window with&out close button", [this] { OpenWithoutCloseButton(); }), 0,
        Qt::AlignBottom);
    return calls;
}

void HelpersPage::Refresh() {
    headings_.SetColors(desk_.Library());
    keys_.SetColors(desk_.Library());
    readKeys_.start();
}

void HelpersPage::hideEvent(QHideEvent* event) {
    readKeys_.stop();
    Page::hideEvent(event);
}

std::array<QWidget*, 4> HelpersPage::Captions() {
    return {&provider_, &interpreter_, &byLetter_, &providerText_};
}

void HelpersPage::Highlight() {
    const bool border = border_.isChecked();
    for (QWidget* const control : Captions()) {
        desk_.Library().HighlightHeading(AsHeading(control), false, border ? 1 : 0);
    }
    desk_.Calls().Add("HighlightHeading", Args(u"each control", false, border ? 1 : 0));
}

void HelpersPage::Unhighlight() {
    const bool useBlack = useBlack_.isChecked();
    for (QWidget* const control : Captions()) {
        desk_.Library().UnhighlightHeading(AsHeading(control), useBlack);
    }
    desk_.Calls().Add("UnhighlightHeading", {"each control", Shown(useBlack)});
}

void HelpersPage::SetGridFont(const QString& code) {
    desk_.Library().GridSetFontObject(GridFontOf(grid_), code);
    desk_.Calls().Add("GridSetFontObject", {"the grid", Shown(code)});
}

void HelpersPage::ReadKeys() {
    Utils& library = desk_.Library();
    for (std::size_t i = 0; i < held_.size(); ++i) {
        const HeldKey& key = kHeldKeys[i];
        const bool isHeld = (library.*key.isPressed)();
        if (held_[i] == isHeld) continue;
        held_[i] = isHeld;
        const auto name = AsHeading(&keyNames_[i]);
        isHeld ? library.HighlightHeading(name) : library.UnhighlightHeading(name, false);
        desk_.Calls().Add(key.member, {}, Shown(isHeld));
    }
}

void HelpersPage::OpenWithoutCloseButton() {
    QDialog dialog(window());
    dialog.setWindowTitle("No close button");
    auto* close = new QPushButton("Close");
    connect(close, &QPushButton::clicked, &dialog, &QDialog::accept);
    auto* rows = new QVBoxLayout(&dialog);
    rows->addWidget(
        new QLabel("The host alone can close this window, and does so with the button."));
    rows->addWidget(close, 0, Qt::AlignRight);
    close->setObjectName("close");
    desk_.Library().KillCloseButton(static_cast<std::int32_t>(dialog.winId()));
    desk_.Calls().Add("KillCloseButton", {"the window"});
    dialog.exec();
    desk_.Calls().Add("QDialog::exec", {}, "the window is closed");
}

void HelpersPage::PlayCaptions(Tour& tour) {
    Highlight();
    tour.Picture(*window(), "captions-highlighted");
    for (const bool black : {false, true}) {
        useBlack_.setChecked(black);
        Unhighlight();
    }
    border_.setChecked(false);
    Highlight();
    tour.Picture(*window(), "captions-without-border");
    border_.setChecked(true);
    tour.Expect(providerText_.styleSheet().isEmpty(), "a text box is left as it is");
}

void HelpersPage::PlayFonts(Tour& tour) {
    for (int i = 0; i < kGridCodes; ++i) {
        SetGridFont(QString::number(i));
        tour.Expect(grid_->font().pointSize() == 8 + i / 3 * 2, "a grid font has its size");
    }
    tour.Picture(*window(), "grid-font-8");
    SetGridFont("0");
}

void HelpersPage::PlayManyItems(Tour& tour) {
    QString items;
    for (int i = 1; i <= kManyItems; ++i) items += QString("Patient %1:").arg(i);
    tour.Expect(desk_.Library().FillCombo(items, AsComboBox(&combo_)), "many entries fill a box");
    tour.ExpectResult("FindInCombo", find_->CallWith({"PATIENT 100000", false, false}), "99999");
}

void HelpersPage::PlayCalls(Tour& tour) {
    const QString longest(200, 'W');
    const struct {
        CallBox* box;
        QVariantList arguments;
        QString result;
    } cases[] = {
        {fill_, {longest, false}, "true"},
        {fill_, {"", false}, "true"},
        {find_, {"", false, true}, "-1"},
        {fill_, {kProviders, true}, "true"},
        {find_, {"dr. baker", false, true}, "-1"},
        {find_, {"baker", true, false}, "1"},
        {font_, {"Tahoma", "0"}, "false, 9 points"},
        {lookup_, {113}, R"(true, "1")"},
        {lookup_, {65}, R"(false, "")"},
        {sleep_, {-1}, "over"},
        {sleep_, {20}, "over"},
    };
    for (const auto& [box, arguments, result] : cases) {
        tour.ExpectResult(box->MemberName(), box->CallWith(arguments), result);
    }
    tour.Expect(font_->CallWith({"Tahoma", "7"}).startsWith("true"), "the font is large enough");
}

void HelpersPage::Play(Tour& tour) {
    PlayCaptions(tour);
    PlayFonts(tour);
    PlayManyItems(tour);
    PlayCalls(tour);
    tour.Answer("no-close-button", {tour.Snapshot("no-close-button"), Click("close")},
                [this] { OpenWithoutCloseButton(); });
}

}  // namespace frontdesk
