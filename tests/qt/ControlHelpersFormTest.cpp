// SPDX-License-Identifier: MIT
#include "tests/FaultOf.h"
#include "tests/qt/FormTest.h"

#include <halvekutils/qt/QtControls.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QTableView>
#include <qtestspontaneevent.h>

namespace halvek {
namespace {

using ControlHelpersFormTest = FormTest;

/// Whether a picture shows a colour in many places.
bool Shows(const QPixmap& picture, QColor color, int places) {
    const QImage image = picture.toImage().convertToFormat(QImage::Format_RGB32);
    const auto* const first = reinterpret_cast<const QRgb*>(image.constBits());
    return std::count(first, first + image.width() * image.height(), color.rgb()) > places;
}

TEST_F(ControlHelpersFormTest, HighlightsShowOnAnyFormAndGoAgain) {
    utils_->InitPrefs(StringArray(), 0, Rgb(0, 90, 0), 0, 0);
    utils_->InitOtherSettings(Rgb(47, 109, 181), Rgb(255, 255, 240), u"", 1, 0);
    const QColor back(47, 109, 181);
    const QColor dark(0x10, 0x20, 0x30);
    // Of the form and of the control itself.
    const QString sheets[][2] = {
        {"QWidget { background: #102030; color: red; }", ""},
        {"", "color: red; background: yellow"},
        {"", "QWidget#x:enabled { background: yellow; } QLabel#x { border: 2px solid red }"}};
    for (const auto& [ofForm, own] : sheets) {
        QWidget form;
        form.resize(200, 200);
        form.setPalette(dark);
        form.setStyleSheet(ofForm);
        const QLabel label("IIII", &form);
        const QRadioButton option("IIII", &form);
        const QCheckBox check("IIII", &form);
        for (QWidget* const each : form.findChildren<QWidget*>()) {
            each->setObjectName("x");
            each->setAutoFillBackground(true);
            each->setFont(QFont("Tahoma", 24));
            each->setStyleSheet(own);
            each->setGeometry(10, 60, 150, 50);
            for (const bool useBlack : {true, false}) {
                utils_->HighlightHeading(AsHeading(each));
                const QPixmap marked = each->grab();
                EXPECT_TRUE(Shows(marked, back, 3000) && Shows(marked, {255, 255, 240}, 80));
                EXPECT_EQ(marked.toImage().pixelColor(75, 0) != back, each == &label);
                utils_->UnhighlightHeading(AsHeading(each), useBlack);
                const QPixmap plain = form.grab(each->geometry());
                EXPECT_TRUE(Shows(plain, dark, 3000) &&
                            Shows(plain, {0, useBlack ? 0 : 90, 0}, 80));
            }
            each->hide();
        }
    }
}

TEST_F(ControlHelpersFormTest, AHighlightWhoseColorsAreAlikeIsReadable) {
    QLabel label("IIII");
    label.setFont(QFont("Tahoma", 24));
    const Color colors[][2] = {{kBlack, kBlack}, {kWhite, kWhite}, {kButtonFace, kButtonFace}};
    for (const auto& [back, fore] : colors) {
        utils_->InitOtherSettings(back, fore, u"", 1, 0);
        utils_->HighlightHeading(AsHeading(&label));
        EXPECT_TRUE(Shows(label.grab(), back == kBlack ? Qt::white : Qt::black, 80)) << back;
    }
}

TEST_F(ControlHelpersFormTest, ComboBoxesAreFilledAndSearched) {
    QComboBox box;
    const std::pair<TextIn, int> fillings[] = {{u"A:B:", 2}, {u":", 1}, {u"", 0}};
    for (const auto& [items, count] : fillings) {
        EXPECT_TRUE(utils_->FillCombo(items, AsComboBox(&box)));
        EXPECT_EQ(box.count(), count);
    }
    const QString items = ":Adams:Zo\u00eb:ZO\u00cb:" + QString(60, 'W');
    EXPECT_TRUE(utils_->FillCombo(items, AsComboBox(&box), true));
    EXPECT_GT(std::min(box.minimumWidth(), box.view()->minimumWidth()), 300);
    const std::tuple<TextIn, bool, bool, int> searches[] = {
        {u"Adams", false, true, 1}, {u"zo\u00cb", false, false, 2}, {u"O\u00cb", true, true, 3},
        {u"", true, true, 1},       {u"O\u00cb", true, false, 2},   {u"", false, true, 0}};
    for (const auto& [text, part, matchCase, found] : searches) {
        EXPECT_EQ(utils_->FindInCombo(AsComboBox(&box), text, part, matchCase), found);
        EXPECT_EQ(utils_->FindInCombo(AsComboBox(&box), u"Adamson", part, matchCase), -1);
        EXPECT_EQ(box.currentIndex(), found);
    }
}

TEST_F(ControlHelpersFormTest, FontsReachGridsAndNoControlThatIsGone) {
    const auto gone = FontOf(std::make_unique<QLabel>().get());
    EXPECT_EQ(FaultOf([&] { gone->Size(8); }), 91);
    QTableView grid;
    for (const QString code : {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "", "00"}) {
        utils_->GridSetFontObject(GridFontOf(&grid), code);
        const int row = code.size() == 1 ? std::min(code.toInt(), 8) : 8;
        EXPECT_EQ(grid.font().pointSize(), 8 + row / 3 * 2);
        EXPECT_EQ(grid.font().bold() - grid.font().italic(), row % 3 == 2 ? -1 : row % 3);
    }
}

TEST_F(ControlHelpersFormTest, AWindowWithoutItsCloseButtonIsClosedByTheHostOnly) {
    QDialog dialog;
    const User user([&](QDialog&) {
        for (const auto window : {dialog.winId(), dialog.winId(), WId{0x7FFFFFFF}}) {
            utils_->KillCloseButton(static_cast<std::int32_t>(window));
            QCloseEvent request;
            QSpontaneKeyEvent::setSpontaneous(&request);
            QCoreApplication::instance()->notify(&dialog, &request);
            EXPECT_FALSE(request.isAccepted());
        }
        QApplication::closeAllWindows();
    });
    dialog.exec();
}

}  // namespace
}  // namespace halvek
