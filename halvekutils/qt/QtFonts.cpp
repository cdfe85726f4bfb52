// SPDX-License-Identifier: MIT
#include <halvekutils/base/Existing.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>

#include <QAbstractItemView>
#include <QFontInfo>
#include <QPointer>

namespace halvek {

namespace {

/// Changes one thing about a widget's font.
template <class Change>
void ChangeFont(QWidget& widget, const Change& change) {
    QFont font = widget.font();
    change(font);
    widget.setFont(font);
}

class WidgetFont : public ControlFont {
  public:
    explicit WidgetFont(QWidget* widget) : widget_(widget) {}

    void Name(TextIn face) override {
        ChangeFont(Widget(), [&](QFont& font) { font.setFamily(ToQString(face)); });
    }
    void Size(float points) override {
        ChangeFont(Widget(), [&](QFont& font) { font.setPointSizeF(static_cast<double>(points)); });
    }
    // What the screen shows: whole pixels, or one of the sizes that a bitmap font has.
    float Size() const override { return static_cast<float>(Widget().fontInfo().pointSizeF()); }

  private:
    QWidget& Widget() const { return Existing(widget_, u"control"); }

    QPointer<QWidget> widget_;
};

class ViewFont : public GridFont {
  public:
    explicit ViewFont(QAbstractItemView* view) : view_(view) {}

    void SetSize(std::int16_t points) override {
        ChangeFont(View(), [&](QFont& font) { font.setPointSize(points); });
    }
    void SetBold(bool bold) override {
        ChangeFont(View(), [&](QFont& font) { font.setBold(bold); });
    }
    void SetItalic(bool italic) override {
        ChangeFont(View(), [&](QFont& font) { font.setItalic(italic); });
    }

  private:
    QAbstractItemView& View() const { return Existing(view_, u"grid"); }

    QPointer<QAbstractItemView> view_;
};

}  // namespace

std::shared_ptr<ControlFont> FontOf(QWidget* widget) {
    return widget == nullptr ? nullptr : std::make_shared<WidgetFont>(widget);
}

std::shared_ptr<GridFont> GridFontOf(QAbstractItemView* grid) {
    return grid == nullptr ? nullptr : std::make_shared<ViewFont>(grid);
}

}  // namespace halvek
