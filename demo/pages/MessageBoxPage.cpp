// SPDX-License-Identifier: MIT
#include "pages/MessageBoxPage.h"

#include "pages/MessageBoxPlay.h"
#include "widgets/Fields.h"

#include <QHBoxLayout>
#include <QLabel>

#include <cstddef>

namespace frontdesk {

using namespace halvek;

namespace {

constexpr int kMaxCountdown = 86'400;
constexpr int kMinChoiceWidth = 200;
// A value that no enumeration has, to show how it is corrected.
constexpr int kUnknownValue = 99;

template <class Enum, std::size_t n>
QComboBox* MakeOpenChoice(const Named<Enum> (&table)[n]) {
    QComboBox* choice = MakeChoice(table);
    choice->addItem(QString("%1 (no such value)").arg(kUnknownValue), kUnknownValue);
    return choice;
}

QString TextOf(MbMsgBoxResult result) {
    return QString("%1 (%2)").arg(result).arg(NameOf(kResultNames, result));
}

/// The prompt, with lines separated as in the text field and as in the library.
QString WithLineFeeds(QString text) {
    return text.replace("\r\n", "\n");
}
QString WithCrLf(QString text) {
    return text.replace("\n", "\r\n");
}

}  // namespace

MessageBoxPage::MessageBoxPage(Desk& desk)
    : Page("&Message box", "Asks the user a question and waits for the answer."),
      desk_(desk),
      samples_(ButtonSetSamples()),
      buttons_(MakeOpenChoice(kButtonsNames)),
      icon_(MakeOpenChoice(kIconNames)),
      background_(MakeOpenChoice(kBackgroundNames)),
      fontSize_(MakeOpenChoice(kFontSizeNames)),
      countdown_(MakeNumber(0, 0, kMaxCountdown)),
      show_(MakeButton("Sho&w", [this] { Show(); })),
      returned_(MakeReadOnlyLine()) {
    for (const BoxSample& sample : SpecialSamples()) samples_.push_back(sample);
    for (const BoxSample& sample : samples_) sample_.addItem(sample.name);
    auto* columns = new QHBoxLayout;
    columns->addLayout(MakePrompt(), 1);
    columns->addSpacing(16);
    columns->addLayout(MakeArguments());
    Body().addLayout(columns, 1);
    connect(&sample_, &QComboBox::activated, this,
            [this](int index) { Enter(samples_[static_cast<std::size_t>(index)].arguments); });
    Enter(samples_[mbYesNo].arguments);
    sample_.setCurrentIndex(mbYesNo);
}

QLayout* MessageBoxPage::MakePrompt() {
    auto* label = new QLabel("&Prompt");
    label->setBuddy(&prompt_);
    prompt_.setAccessibleName("Prompt");
    prompt_.setTabChangesFocus(true);
    auto* column = new QVBoxLayout;
    column->addWidget(label);
    column->addWidget(&prompt_);
    return column;
}

QLayout* MessageBoxPage::MakeArguments() {
    countdown_->setSuffix(" s");
    countdown_->setSpecialValueText("none");
    connect(&title_, &QLineEdit::returnPressed, show_, &QPushButton::click);
    bold_.setText("Bo&ld");
    bold_.setAccessibleName("Bold");
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    AddRow(*form, "Sampl&e", &sample_);
    AddRow(*form, "&Title", &title_);
    AddRow(*form, "&Buttons", buttons_);
    AddRow(*form, "&Icon", icon_);
    AddRow(*form, "Bac&kground", background_);
    AddRow(*form, "Font si&ze", fontSize_);
    form->addRow(QString(), &bold_);
    AddRow(*form, "&Countdown", countdown_);
    form->addRow(QString(), show_);
    AddRow(*form, "&Returned", returned_);
    sample_.setMinimumWidth(kMinChoiceWidth);
    return form;
}

void MessageBoxPage::Enter(const BoxArguments& arguments) {
    prompt_.setPlainText(WithLineFeeds(arguments.prompt));
    title_.setText(arguments.title);
    Choose(*buttons_, arguments.buttons);
    Choose(*icon_, arguments.icon);
    Choose(*background_, arguments.background);
    Choose(*fontSize_, arguments.fontSize);
    bold_.setChecked(arguments.fontBold);
    countdown_->setValue(arguments.closeAfterNSec);
}

BoxArguments MessageBoxPage::Entered() const {
    return {WithCrLf(prompt_.toPlainText()),
            ChosenIn<ButtonsChoice>(*buttons_),
            ChosenIn<IconChoice>(*icon_),
            title_.text(),
            ChosenIn<ColorChoice>(*background_),
            ChosenIn<FontSizeChoice>(*fontSize_),
            bold_.isChecked(),
            countdown_->value()};
}

void MessageBoxPage::Show() {
    const BoxArguments before = Entered();
    BoxArguments box = before;
    result_ =
        desk_.Library().ShowMsgBox(box.prompt, box.buttons, box.icon, box.title, box.background,
                                   box.fontSize, box.fontBold, box.closeAfterNSec);
    returned_->setText(TextOf(result_));
    Note(before, box);
}

void MessageBoxPage::Note(const BoxArguments& before, const BoxArguments& after) {
    QString result = TextOf(result_);
    if (after.background != before.background) {
        result += ", BackgroundColor now " + NameOf(kBackgroundNames, after.background);
    }
    if (after.fontSize != before.fontSize) {
        result += ", fontSize now " + NameOf(kFontSizeNames, after.fontSize);
    }
    desk_.Calls().Add(
        "ShowMsgBox",
        {Shown(before.prompt), NameOf(kButtonsNames, before.buttons),
         NameOf(kIconNames, before.icon), Shown(before.title),
         NameOf(kBackgroundNames, before.background), NameOf(kFontSizeNames, before.fontSize),
         Shown(before.fontBold), Shown(before.closeAfterNSec)},
        result);
}

MbMsgBoxResult MessageBoxPage::ShowWith(const BoxArguments& arguments) {
    Enter(arguments);
    show_->click();
    return result_;
}

void MessageBoxPage::Play(Tour& tour) {
    PlayMessageBoxes(*this, tour);
    Enter(samples_[mbYesNo].arguments);
}

}  // namespace frontdesk
