// SPDX-License-Identifier: MIT
#include "tests/FaultOf.h"
#include "tests/qt/FormTest.h"

#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/helpers/Metrics.h>

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
    const QString sheets[][2] = {{"QWidget { background: #102030; color: red; }", ""},
                                 {"", "color: red; background: yellow"},
                                 {"",
                                  "QWidget#x:enabled { background: yellow; } QLabel#x { border: "
                                  "2px solid red; padding: 1px 3px }"}};
    for (const auto& [ofForm, own] : sheets) {
        QWidget form;
        form.resize(200, 200);
        form.setPalette(dark);
        form.setStyleSheet(ofForm);
        QLabel label("IIII", &form);
        if (ofForm.isEmpty()) label.setFrameStyle(QFrame::Panel | QFrame::Sunken);
        const QRadioButton option("IIII", &form);
        const QCheckBox check("IIII", &form);
        for (QWidget* const each : form.findChildren<QWidget*>()) {
            each->setObjectName("x");
            each->setAutoFillBackground(true);
            each->setFont(QFont("Tahoma", 24));
            each->setStyleSheet(own);
            each->setGeometry(10, 60, 150, 50);
            each->ensurePolished();
            const QSize before = each->sizeHint();
            for (const bool useBlack : {true, false}) {
                utils_->HighlightHeading(AsHeading(each));
                EXPECT_EQ(each->sizeHint(), before);
                const QPixmap marked = each->grab();
                EXPECT_TRUE(Shows(marked, back, 3000) && Shows(marked, {255, 255, 240}, 80));
                EXPECT_EQ(marked.toImage().pixelColor(75, 0) != back, each == &label);
                utils_->UnhighlightHeading(AsHeading(each), useBlack);
                EXPECT_EQ(each->sizeHint(), before);
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

TEST_F(ControlHelpersFormTest, FontsReachControlsWhateverTheHostsStyleSheetSays) {
    for (const QString sheet : {"* { font: 20pt \"DejaVu Serif\"; }", "QLabel { font-size: 15px }",
                                "QTableView, QHeaderView { font: italic bold 20pt }", ""}) {
        SCOPED_TRACE(qPrintable(sheet));
        QWidget form;
        form.setStyleSheet(sheet);
        QLabel label("IIII", &form);
        QTableView grid(&form);
        EXPECT_TRUE(utils_->SetFontProperties(FontOf(&label), u"DejaVu Sans", 9));
        utils_->HighlightHeading(AsHeading(&label));
        label.ensurePolished();
        EXPECT_EQ(label.fontInfo().family(), "DejaVu Sans");
        EXPECT_EQ(label.fontInfo().pointSizeF(), 9);
        for (const QString code : {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "", "00"}) {
            utils_->GridSetFontObject(GridFontOf(&grid), code);
            const int row = code.size() == 1 ? std::min(code.toInt(), 8) : 8;
            for (QWidget* const part :
                 std::initializer_list<QWidget*>{&grid, grid.horizontalHeader()}) {
                part->ensurePolished();
                EXPECT_EQ(part->font().pointSize(), 8 + row / 3 * 2);
                EXPECT_EQ(part->font().bold() - part->font().italic(), row % 3 == 2 ? -1 : row % 3);
            }
        }
    }
    const auto gone = FontOf(std::make_unique<QLabel>().get());
    EXPECT_EQ(FaultOf([&] { gone->Size(8); }), 91);
}

TEST_F(ControlHelpersFormTest, AFontOutlivesLaterStyleSheetsButNotAFontOfTheHosts) {
    QWidget form;
    QLabel label("IIII", &form);
    label.setObjectName("caption");
    EXPECT_TRUE(utils_->SetFontProperties(FontOf(&label), u"DejaVu Sans", 9));
    for (const QString sheet : {"* { font: 20pt \"DejaVu Serif\"; }", "",
                                "#caption { font: bold 15px; color: blue }", "* { color: red }"}) {
        form.setStyleSheet(sheet);
        label.ensurePolished();
        EXPECT_EQ(label.font().family(), "DejaVu Sans") << sheet.toStdString();
        EXPECT_EQ(label.fontInfo().pointSizeF(), 9) << sheet.toStdString();
        label.setStyleSheet(sheet);
        EXPECT_EQ(label.fontInfo().pointSizeF(), 9) << sheet.toStdString();
    }
    QLabel changed("IIII");
    EXPECT_TRUE(utils_->SetFontProperties(FontOf(&changed), u"DejaVu Sans", 9));
    changed.setFont(QFont("DejaVu Sans", 12));
    changed.setStyleSheet("* { color: red }");
    EXPECT_EQ(changed.font().pointSize(), 12);
}

TEST_F(ControlHelpersFormTest, ATargetIsTheVisiblePartOfAWidgetOrCellUntilItIsGone) {
    QWidget form;
    form.setGeometry(100, 100, 300, 300);
    auto* const grid = new QTableWidget(50, 2, &form);
    grid->setGeometry(0, 0, 300, 200);
    form.show();
    const auto view = [&] {
        return QRect(grid->viewport()->mapToGlobal(QPoint()), grid->viewport()->size());
    };
    const auto cellIn = [&](int row) { return Beside(grid, grid->model()->index(row, 0)); };
    const auto placeOf = [&](int row) { return ToQRect(cellIn(row)->Place()); };
    const auto whole = Beside(grid);
    const auto place = Beside(QRect(100, 100, 300, 200));  // of a host without widgets
    EXPECT_EQ(whole->Place(), (Rect{1500, 1500, 4500, 3000}));
    EXPECT_EQ(place->Place(), whole->Place());
    EXPECT_EQ(place->Screen(), whole->Screen());
    EXPECT_TRUE(view().contains(placeOf(1)));
    EXPECT_EQ(placeOf(40).top(), view().bottom());
    EXPECT_EQ(placeOf(40).left(), view().left());
    grid->scrollToBottom();
    EXPECT_EQ(placeOf(0).bottom(), view().top());
    grid->move(0, 250);  // the form's edge now cuts the view
    EXPECT_EQ(placeOf(49).top(), form.geometry().bottom());
    const auto cell = cellIn(1);
    grid->model()->removeRows(0, 10);
    EXPECT_FALSE(cell->Exists());
    EXPECT_EQ(FaultOf([&] { cell->Place(); }), 91);
    delete grid;
    EXPECT_FALSE(whole->Exists());
    EXPECT_EQ(FaultOf([&] { whole->Screen(); }), 91);
    EXPECT_EQ(Beside(nullptr), nullptr);
}

TEST_F(ControlHelpersFormTest, ComboBoxesAreFilledAndSearched) {
    QComboBox box;
    const std::pair<TextIn, int> fillings[] = {{u"A:B:", 2}, {u":", 1}, {u"", 0}};
    for (const auto& [items, count] : fillings) {
        EXPECT_TRUE(utils_->FillCombo(items, AsComboBox(&box)));
        EXPECT_EQ(box.count(), count);
    }
    const QString items =
        ":Adams:Zo\u00eb:ZO\u00cb:" + QString(60, 'W') +
        ":\u0141\u00f3d\u017a:\u0386\u03bd\u03bd\u03b1\u03c2:\u0416anna:\u0131\u015f\u0131k";
    EXPECT_TRUE(utils_->FillCombo(items, AsComboBox(&box), true));
    EXPECT_GT(std::min(box.minimumWidth(), box.view()->minimumWidth()), 300);
    const std::tuple<TextIn, bool, bool, int> searches[] = {
        {u"Adams", false, true, 1},
        {u"zo\u00cb", false, false, 2},
        {u"O\u00cb", true, true, 3},
        {u"", true, true, 1},
        {u"O\u00cb", true, false, 2},
        {u"", false, true, 0},
        {u"\u0142\u00d3D\u0179", false, false, 5},
        {u"\u03ac\u039d\u039d\u0391\u03a3", false, false, 6},
        {u"\u0436ANNA", false, false, 7},
        {u"I\u015eIK", false, false, 8}};
    for (const auto& [text, part, matchCase, found] : searches) {
        EXPECT_EQ(utils_->FindInCombo(AsComboBox(&box), text, part, matchCase), found);
        EXPECT_EQ(utils_->FindInCombo(AsComboBox(&box), u"Adamson", part, matchCase), -1);
        EXPECT_EQ(box.currentIndex(), found);
    }
}

}  // namespace
}  // namespace halvek
