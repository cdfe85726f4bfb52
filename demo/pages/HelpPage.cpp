// SPDX-License-Identifier: MIT
#include "pages/HelpPage.h"

#include "tour/Tour.h"
#include "widgets/Fields.h"

#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <QFile>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTextBrowser>

#include <limits>

namespace frontdesk {

namespace {

enum FileChoice : int { kOwnFile, kMissingFile, kDamagedFile, kNoHelpFile };

constexpr const char* kTopics[] = {
    "::/welcome.htm", "::/payments.htm#refunds", "codes.htm", "::/plan.htm", "",
};

QLayout* WithButton(QWidget* field, const QString& caption, const std::function<void()>& pressed) {
    auto* row = new QHBoxLayout;
    row->addWidget(field, 1);
    row->addWidget(MakeButton(caption, pressed));
    return row;
}

QLabel* LabelOf(const char* text, QWidget& control) {
    auto* label = new QLabel(text);
    label->setBuddy(&control);
    control.setAccessibleName(QString(text).remove('&'));
    return label;
}

/// The library's help window; null before it was first opened.
QWidget* Viewer() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == "HelpViewer") return window;
    }
    return nullptr;
}

}  // namespace

HelpPage::HelpPage(Desk& desk)
    : Page("Compiled &help",
           "Opens a help file at a topic. The window stays open beside dialogs, and a later call "
           "uses it again. F1 anywhere opens the topic of the page in front."),
      desk_(desk),
      number_(MakeNumber(kPaymentsTopic, std::numeric_limits<int>::min(),
                         std::numeric_limits<int>::max())) {
    AddFiles();
    topic_.setEditable(true);
    for (const char* topic : kTopics) topic_.addItem(topic);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    AddRow(*form, "He&lp file", &file_);
    form->addRow(LabelOf("&Context number", *number_),
                 WithButton(number_, "ShowHel&p", [this] { ShowByNumber(); }));
    form->addRow(LabelOf("&Topic", topic_),
                 WithButton(&topic_, "ShowHelp&ByTopic", [this] { ShowByTopic(); }));
    Body().addLayout(form);
    Body().addStretch();
    Body().addWidget(logged_);
}

/// The damaged file is half of the client's own.
void HelpPage::AddFiles() {
    QFile own(SampleData::HelpFile());
    QFile half(damaged_.filePath("Damaged.chm"));
    if (own.open(QIODevice::ReadOnly) && half.open(QIODevice::WriteOnly)) {
        half.write(own.read(own.size() / 2));
    }
    file_.addItem("The client's own, from InitHelp", QString());
    file_.addItem("One that is missing", damaged_.filePath("Missing.chm"));
    file_.addItem("One that is damaged", half.fileName());
    file_.addItem("One that is not a help file", SampleData::Folder() + "/codes.txt");
}

void HelpPage::ShowByNumber() {
    logged_->SetMessages(desk_.ShowHelp(number_->value(), file_.currentData().toString()));
}

void HelpPage::ShowByTopic() {
    logged_->SetMessages(
        desk_.ShowHelpByTopic(topic_.currentText(), file_.currentData().toString()));
}

void HelpPage::Play(Tour& tour) {
    tour.Answer("help-missing-file",
                {tour.Snapshot("help-missing-file"), PressKey("arrCmd_0", Qt::Key_Escape)}, [this] {
                    file_.setCurrentIndex(kMissingFile);
                    ShowByNumber();
                });
    file_.setCurrentIndex(kOwnFile);
    if (!QFile::exists(SampleData::HelpFile())) return;
    PlayViewer(tour);
    PlayFaults(tour);
    file_.setCurrentIndex(kOwnFile);
    Viewer()->close();
}

void HelpPage::PlayViewer(Tour& tour) {
    ShowByNumber();
    QWidget& viewer = *Viewer();
    tour.Picture(viewer, "help-by-number");
    for (int i = 0; i < topic_.count(); ++i) {
        topic_.setCurrentIndex(i);
        ShowByTopic();
        tour.Picture(viewer, QString("help-by-topic-%1").arg(i + 1));
    }
    tour.Expect(Viewer() == &viewer, "a later call uses the same window");
    // A dialog of the library's does not block the help.
    tour.Answer("help-beside-dialog",
                {tour.Check("the help answers",
                            [&](QWidget&) {
                                viewer.findChild<QAction*>("actFind")->trigger();
                                tour.Picture(viewer, "help-find");
                                return viewer.isEnabled();
                            }),
                 PressKey("arrCmd_0", Qt::Key_Return)},
                [this] {
                    desk_.Library().ShowMsgBox(u"Post the payment?", halvek::mbOkOnly,
                                               halvek::mbQuestion, u"Payment");
                });
    for (int i = 0; i < 4; ++i) viewer.findChild<QAction*>("actLarger")->trigger();
    tour.Picture(viewer, "help-enlarged");
    viewer.findChild<QAction*>("actOrdinarySize")->trigger();
    emit viewer.findChild<QTextBrowser*>()->anchorClicked(QUrl("https://intranet.example/rules"));
    tour.Picture(viewer, "help-outside-address");
}

void HelpPage::PlayFaults(Tour& tour) {
    number_->setValue(4711);
    ShowByNumber();
    tour.Picture(*Viewer(), "help-unknown-number");
    number_->setValue(kPaymentsTopic);
    for (const auto& [file, name] :
         {std::pair(kDamagedFile, "help-damaged"), std::pair(kNoHelpFile, "help-no-help-file")}) {
        file_.setCurrentIndex(file);
        ShowByNumber();
        tour.Picture(*Viewer(), name);
        tour.Expect(logged_->toPlainText().contains("Error in Utils.ShowHelp "),
                    "a file that cannot be read is logged");
    }
}

}  // namespace frontdesk
