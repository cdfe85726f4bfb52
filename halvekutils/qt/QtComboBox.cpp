// SPDX-License-Identifier: MIT
#include <halvekutils/base/Existing.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/helpers/WindowOpening.h>

#include <QComboBox>
#include <QFontMetricsF>
#include <QListView>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace halvek {

namespace {

// From this many entries on Qt's defaults make people wait: a box measures every entry to find its
// own width, and some styles make room for all of them when it drops down.
constexpr int kManyItems = 1000;
constexpr int kWidthForMany = 20;  // in characters

void OpenFastWithMany(QComboBox& box) {
    if (box.count() < kManyItems) return;
    if (auto* const list = qobject_cast<QListView*>(box.view())) list->setUniformItemSizes(true);
    if (box.styleSheet().isEmpty()) box.setStyleSheet(QStringLiteral("combobox-popup: 0"));
    const auto policy = QComboBox::AdjustToMinimumContentsLengthWithIcon;
    if (box.sizeAdjustPolicy() == policy) return;
    box.setSizeAdjustPolicy(policy);
    box.setMinimumContentsLength(std::max(box.minimumContentsLength(), kWidthForMany));
}

/// Measures a text as the sum of its characters: a good estimate where characters join or overlap,
/// exact elsewhere, and a hundred times as fast.
class CharacterWidths {
  public:
    explicit CharacterWidths(const QFont& font) : metrics_(font) {
        for (std::size_t i = 0; i < known_.size(); ++i) {
            known_[i] = metrics_.horizontalAdvance(QChar(static_cast<char16_t>(i)));
        }
    }

    double Of(const QString& text) const {
        double width = 0;
        for (const QChar character : text) {
            const auto code = std::size_t{character.unicode()};
            width += code < known_.size() ? known_[code] : metrics_.horizontalAdvance(character);
        }
        return width;
    }

  private:
    QFontMetricsF metrics_;
    std::array<double, 0x180> known_{};  // Latin letters
};

int WidestItem(const QComboBox& box) {
    const CharacterWidths widths(box.font());
    double widest = 0;
    for (int i = 0; i < box.count(); ++i) widest = std::max(widest, widths.Of(box.itemText(i)));
    return static_cast<int>(std::ceil(std::min(widest, 1e6)));
}

/// The width of a box around a text of this width, arrow included.
int BoxWidth(const QComboBox& box, int text) {
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.editable = box.isEditable();
    const QSize contents(text, box.fontMetrics().height());
    return box.style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, &box).width();
}

int DropDownWidth(const QComboBox& box, int text) {
    const QAbstractItemView& list = *box.view();
    const int margin = list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list) + 1;
    return text + 2 * (margin + list.frameWidth()) + list.verticalScrollBar()->sizeHint().width();
}

void Widen(QWidget& widget, int width) {
    widget.setMinimumWidth(std::max(widget.minimumWidth(), width));
}

class WidgetComboBox : public ComboBox {
  public:
    explicit WidgetComboBox(QComboBox* box) : box_(box) {}

    std::int32_t ListCount() const override { return Box().count(); }
    std::u16string List(std::int32_t index) const override {
        return Box().itemText(index).toStdU16String();
    }
    void ListIndex(std::int32_t index) override { Box().setCurrentIndex(index); }

    void SetItems(const std::vector<TextIn>& items) override {
        QStringList texts;
        texts.reserve(static_cast<qsizetype>(items.size()));
        for (const TextIn item : items) texts << ToQString(item);
        Box().setCurrentIndex(-1);  // the last signal that the host gets: no entry is chosen
        QComboBox& box = Box();
        const QSignalBlocker silent(box);
        box.clear();
        box.addItems(texts);
        box.setCurrentIndex(-1);
        if (box.count() != texts.size()) {
            throw RuntimeError(Fault::InvalidArgument, u"a combo box that takes not all entries");
        }
        OpenFastWithMany(box);
    }

    void WidenToItems() override {
        QComboBox& box = Box();
        const int text = WidestItem(box);
        const int screen = WindowOpening::UsableArea(box.screen()).width();
        Widen(*box.view(), std::min(DropDownWidth(box, text), screen));
        Widen(box, std::min(BoxWidth(box, text), screen / 2));
    }

  private:
    QComboBox& Box() const { return Existing(box_, u"combo box"); }

    QPointer<QComboBox> box_;
};

}  // namespace

std::shared_ptr<ComboBox> AsComboBox(QComboBox* box) {
    return box == nullptr ? nullptr : std::make_shared<WidgetComboBox>(box);
}

}  // namespace halvek
