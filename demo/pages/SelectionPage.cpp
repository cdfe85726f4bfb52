// SPDX-License-Identifier: MIT
#include "pages/SelectionPage.h"

#include "pages/SelectionPlay.h"
#include "widgets/Fields.h"

#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>

#include <cstddef>
#include <limits>
#include <memory>
#include <utility>

namespace frontdesk {

using namespace halvek;

namespace {

constexpr int kFarthest = 1'000'000;
constexpr int kTypedWidth = 60;

QSpinBox* MakePosition() {
    QSpinBox* position = MakeNumber(-1, -1, kFarthest);
    position->setSpecialValueText("not given");
    return position;
}

QLabel* LabelOf(const char* text, QWidget& control) {
    auto* label = new QLabel(text);
    label->setBuddy(&control);
    return label;
}

/// What a key types by itself; empty for a command and for an editing key.
QString TypedBy(const QKeyEvent& key) {
    const bool isCommand =
        key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const QString text = key.text();
    return isCommand || text.isEmpty() || !text[0].isPrint() ? QString() : text;
}

}  // namespace

SelectionPage::SelectionPage(Desk& desk)
    : Page("Se&lection list",
           "Lets the user choose codes from a list of the server's. Type a character into the "
           "field of codes, or press the button beside it."),
      desk_(desk),
      samples_(SelectionSamples(desk.Data())),
      valuesShown_(MakeReadOnlyLine()),
      member_(MakeChoice(kSelectionMembers)),
      posLeft_(MakePosition()),
      posTopUp_(MakePosition()),
      posTopDown_(MakePosition()),
      calculate_(MakeButton("Calculate", [this] { EnterPositions(); })),
      returned_(MakeReadOnlyLine()) {
    returned_->setMaxLength(std::numeric_limits<int>::max());
    for (const SelectionSample& sample : samples_) sample_.addItem(sample.name);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    AddArguments(*form);
    Body().addLayout(form);
    Body().addStretch();
    connect(&sample_, &QComboBox::activated, this,
            [this](int index) { Enter(samples_[static_cast<std::size_t>(index)].arguments); });
    connect(member_, &QComboBox::currentIndexChanged, this, [this] { EnableArguments(); });
    connect(&choose_, &QToolButton::clicked, this, [this] { Show(); });
    connect(&codes_, &QLineEdit::returnPressed, &choose_, &QToolButton::click);
    Enter(samples_[0].arguments);
}

void SelectionPage::AddArguments(QFormLayout& form) {
    typed_.setMaximumWidth(kTypedWidth);
    noDeleted_.setText("&Do not include deleted entries");
    noDeleted_.setAccessibleName("Do not include deleted entries");
    AddRow(form, "L&ist", &sample_);
    AddRow(form, "List na&me", &listName_);
    AddRow(form, "All values", valuesShown_);
    form.addRow(LabelOf("&Codes", codes_), MakeCodes());
    AddRow(form, "&Typed character", &typed_);
    form.addRow(QString(), &noDeleted_);
    AddRow(form, "&Open with", member_);
    form.addRow(LabelOf("&Position", *posLeft_), MakePositions());
    AddRow(form, "&Returned", returned_);
}

QLayout* SelectionPage::MakeCodes() {
    codes_.setAccessibleName("Codes");
    codes_.setMaxLength(std::numeric_limits<int>::max());
    codes_.installEventFilter(this);
    choose_.setText("...");
    choose_.setFocusPolicy(Qt::StrongFocus);
    choose_.setAccessibleName("Choose codes");
    choose_.setToolTip("Choose codes (Enter)");
    auto* row = new QHBoxLayout;
    row->setSpacing(1);
    row->addWidget(&codes_);
    row->addWidget(&choose_);
    return row;
}

QWidget* SelectionPage::MakePositions() {
    calculate_->setToolTip("The positions beside the button (CalculateCellCoordinates)");
    auto* row = new QHBoxLayout(&positions_);
    row->setContentsMargins(0, 0, 0, 0);
    const std::pair<QSpinBox*, const char*> positions[] = {
        {posLeft_, "posLeft"}, {posTopUp_, "posTopUp"}, {posTopDown_, "posTopDown"}};
    for (const auto& [position, name] : positions) {
        position->setAccessibleName(name);
        row->addWidget(new QLabel(name));
        row->addWidget(position, 1);
    }
    row->addWidget(calculate_);
    return &positions_;
}

void SelectionPage::EnableArguments() {
    const auto member = ChosenIn<SelectionMember>(*member_);
    noDeleted_.setEnabled(IsGrid(member));
    positions_.setEnabled(!IsBeside(member));
}

void SelectionPage::EnterPositions() {
    float left = 0;
    float up = 0;
    float down = 0;
    desk_.Library().CalculateCellCoordinates(Beside(&choose_), left, up, down, PopupEdge::Right);
    posLeft_->setValue(static_cast<int>(left));
    posTopUp_->setValue(static_cast<int>(up));
    posTopDown_->setValue(static_cast<int>(down));
    desk_.Calls().Add("CalculateCellCoordinates", {"the button", "PopupEdge::Right"},
                      Args(left, up, down).join(", "));
}

void SelectionPage::Enter(const SelectionArguments& arguments) {
    listName_.setText(arguments.listName);
    allValues_ = arguments.allValues;
    valuesShown_->setText(Shown(allValues_));
    valuesShown_->setCursorPosition(0);
    codes_.setText(arguments.selected);
    typed_.setText(arguments.typed);
    noDeleted_.setChecked(arguments.doNotIncludeDeleted);
    frontdesk::Choose(*member_, arguments.member);
    posLeft_->setValue(arguments.posLeft);
    posTopUp_->setValue(arguments.posTopUp);
    posTopDown_->setValue(arguments.posTopDown);
    EnableArguments();
}

SelectionArguments SelectionPage::Entered() const {
    return {listName_.text(),       allValues_,
            codes_.text(),          typed_.text(),
            noDeleted_.isChecked(), ChosenIn<SelectionMember>(*member_),
            posLeft_->value(),      posTopUp_->value(),
            posTopDown_->value()};
}

void SelectionPage::Show() {
    const SelectionArguments arguments = Entered();
    std::u16string typed = arguments.typed.toStdU16String();
    result_ = ToQString(Call(arguments, typed));
    typed_.setText(ToQString(typed));
    returned_->setText(result_);
    if (result_ != "CANCEL") codes_.setText(result_);
    Note(arguments);
}

std::u16string SelectionPage::Call(const SelectionArguments& arguments, std::u16string& typed) {
    Utils& library = desk_.Library();
    const auto& [name, values, selected, ignored, noDeleted, member, left, up, down] = arguments;
    const auto button = Beside(&choose_);
    const auto form = AsOwnerForm(this);
    const auto x = static_cast<float>(left);
    const auto above = static_cast<float>(up);
    const auto below = static_cast<float>(down);
    switch (member) {
        case kSelection:
            return library.ShowSelection(name, values, selected, x, above, below, form, typed);
        case kSelectionGrid:
            return library.ShowSelectionGrid(name, values, selected, x, above, below, form, typed,
                                             noDeleted);
        case kSelectionBeside:
            return library.ShowSelectionAndCalculateCoordinates(name, values, selected, button,
                                                                form, typed);
        case kSelectionGridBeside:
            break;
    }
    return library.ShowSelectionGridAndCalculateCoordinates(name, values, selected, button, form,
                                                            typed, noDeleted);
}

void SelectionPage::Note(const SelectionArguments& arguments) {
    QStringList shown = Args(arguments.listName, arguments.allValues, arguments.selected);
    if (IsBeside(arguments.member)) {
        shown << "the button";
    } else {
        shown << Args(arguments.posLeft, arguments.posTopUp, arguments.posTopDown);
    }
    shown << "the window" << Shown(arguments.typed);
    if (IsGrid(arguments.member)) shown << Shown(arguments.doNotIncludeDeleted);
    desk_.Calls().Add(NameOf(kSelectionMembers, arguments.member), shown, Shown(result_));
}

bool SelectionPage::eventFilter(QObject* watched, QEvent* event) {
    if (watched != &codes_ || event->type() != QEvent::KeyPress) {
        return Page::eventFilter(watched, event);
    }
    const QString text = TypedBy(*static_cast<QKeyEvent*>(event));
    if (text.isEmpty()) return false;
    typed_.setText(text);
    Show();
    return true;
}

QString SelectionPage::Choose() {
    choose_.click();
    return result_;
}

QString SelectionPage::TypeIntoCodes(QChar letter) {
    QKeyEvent press(QEvent::KeyPress, letter.toUpper().unicode(), Qt::NoModifier, letter);
    QCoreApplication::sendEvent(&codes_, &press);
    return result_;
}

void SelectionPage::Play(Tour& tour) {
    PlaySelections(*this, tour);
    Enter(samples_[0].arguments);
}

}  // namespace frontdesk
