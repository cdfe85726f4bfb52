#include "tests/FaultOf.h"
#include "tests/qt/FormTest.h"

#include <halvekutils/qt/QtControls.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTableView>
#include <qtestspontaneevent.h>

namespace halvek {
namespace {

using ControlHelpersFormTest = FormTest;

/// Whether a picture shows a colour in many places.
bool Shows(const QPixmap& picture, QColor color, int places) {
    const QImage image = picture.toImage();
    for (int i = 0; i < image.width() * image.height(); ++i) {
        places -= image.pixelColor(i % image.width(), i / image.width()) == color;
    }
    return places <= 0;
}

TEST_F(ControlHelpersFormTest, HighlightsShowOnAnyFormAndGoAgain) {
    utils_->InitPrefs(StringArray(), 0, Rgb(0, 90, 0), 0, 0);
    utils_->InitOtherSettings(Rgb(47, 109, 181), Rgb(255, 255, 240), u"", 1, 0);
    const QColor back(47, 109, 181);
    const QColor dark(0x10, 0x20, 0x30);
    const QString sheets[][2] = {{"", ""},
                                 {"QWidget { background: #102030; color: red; }", ""},
                                 {"", "color: red; background: yellow"},
                                 {"* { background: #102030 }",
                                  "QWidget#x:enabled { color: red; background: yellow; } QLabel#x "
                                  "{ border: 2px solid red }"}};
    for (const auto& [ofForm, own] : sheets) {
        QWidget form;
        form.resize(200, 200);
        form.setPalette(dark);
        form.setStyleSheet(ofForm);
        const std::array<QWidget*, 3> controls = {new QLabel("IIII", &form),
                                                  new QRadioButton("IIII", &form),
                                                  new QCheckBox("IIII", &form)};
        for (QWidget* const each : controls) {
            each->setObjectName("x");
            each->setAutoFillBackground(true);
            each->setFont(QFont("Tahoma", 24));
            each->setStyleSheet(own);
            each->setGeometry(10, 60, 150, 50);
            for (const bool useBlack : {true, false}) {
                utils_->HighlightHeading(AsHeading(each));
                EXPECT_TRUE(Shows(each->grab(), back, 3000));
                EXPECT_TRUE(Shows(each->grab(), QColor(255, 255, 240), 80));
                const QColor edge = each->grab().toImage().pixelColor(75, 0);
                EXPECT_EQ(edge != back, each == controls[0]);
                utils_->UnhighlightHeading(AsHeading(each), useBlack);
                EXPECT_TRUE(Shows(form.grab(each->geometry()), dark, 3000));
                const QColor text(0, useBlack ? 0 : 90, 0);
                EXPECT_TRUE(Shows(form.grab(each->geometry()), text, 80));
            }
            each->hide();
        }
    }
    QLineEdit text;
    utils_->HighlightHeading(AsHeading(&text));
    EXPECT_EQ(text.styleSheet(), "");
}

TEST_F(ControlHelpersFormTest, ComboBoxesAreFilledAndSearched) {
    QComboBox box;
    box.addItem("before");
    const QSignalSpy changes(&box, &QComboBox::currentIndexChanged);
    const QString wide(60, 'W');
    const std::pair<QString, QStringList> fillings[] = {
        {"A:B:", {"A", "B"}},
        {":", {""}},
        {"", {}},
        {":Adams, Zoë:ADAMS, ZOË:Adams:" + wide, {"", "Adams, Zoë", "ADAMS, ZOË", "Adams", wide}}};
    for (const auto& [items, entries] : fillings) {
        EXPECT_EQ(box.minimumWidth(), 0);
        EXPECT_TRUE(utils_->FillCombo(items, AsComboBox(&box), entries.size() > 3));
        QStringList held;
        for (int i = 0; i < box.count(); ++i) held << box.itemText(i);
        EXPECT_EQ(held, entries);
    }
    EXPECT_GT(box.minimumWidth(), 300);
    EXPECT_GT(box.view()->minimumWidth(), box.fontMetrics().horizontalAdvance(wide));
    EXPECT_EQ(changes.size(), 1);
    const std::tuple<TextIn, bool, bool, int> searches[] = {
        {u"Adams", false, true, 3},      {u"adams, zo\u00eb", false, false, 1},
        {u"S, ZO\u00cb", true, true, 2}, {u"s, zo\u00cb", true, false, 1},
        {u"", false, true, 0},           {u"", true, true, 1}};
    for (const auto& [text, part, matchCase, found] : searches) {
        EXPECT_EQ(utils_->FindInCombo(AsComboBox(&box), text, part, matchCase), found);
        EXPECT_EQ(utils_->FindInCombo(AsComboBox(&box), u"Adamson", part, matchCase), -1);
        EXPECT_EQ(box.currentIndex(), found);
    }
}

TEST_F(ControlHelpersFormTest, FontsReachControlsAndGrids) {
    auto label = std::make_unique<QLabel>("name");
    const auto font = FontOf(label.get());
    EXPECT_TRUE(utils_->SetFontProperties(font, u"Tahoma", 7));
    EXPECT_GE(label->fontInfo().pointSizeF(), 7);
    label.reset();
    EXPECT_EQ(FaultOf([&] { font->Size(8); }), 91);
    QTableView grid;
    for (const QString code : {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "", "00"}) {
        utils_->GridSetFontObject(GridFontOf(&grid), code);
        const int row = code.size() == 1 ? std::min(code.toInt(), 8) : 8;
        EXPECT_EQ(grid.font().pointSize(), 8 + row / 3 * 2);
        EXPECT_EQ(grid.font().bold(), row % 3 == 1);
        EXPECT_EQ(grid.font().italic(), row % 3 == 2);
    }
}

TEST_F(ControlHelpersFormTest, AWindowWithoutItsCloseButtonIsClosedByTheHostOnly) {
    QDialog dialog;
    const auto requestClose = [&] {
        QCloseEvent request;
        QSpontaneKeyEvent::setSpontaneous(&request);
        QCoreApplication::instance()->notify(&dialog, &request);
        return request.isAccepted();
    };
    const User user([&](QDialog&) {
        for (const auto window : {dialog.winId(), dialog.winId(), WId{0x7FFFFFFF}}) {
            utils_->KillCloseButton(static_cast<std::int32_t>(window));
            EXPECT_FALSE(requestClose() || !dialog.isVisible());
        }
        QApplication::closeAllWindows();
    });
    dialog.exec();
    dialog.setWindowFlag(Qt::WindowCloseButtonHint);
    EXPECT_TRUE(requestClose());
}

}  // namespace
}  // namespace halvek
