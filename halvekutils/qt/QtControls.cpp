// SPDX-License-Identifier: MIT
#include <halvekutils/base/Existing.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/helpers/Metrics.h>
#include <halvekutils/qt/helpers/WindowOpening.h>

#include <QAbstractItemView>
#include <QGuiApplication>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace halvek {

namespace {

/// 0 for a window that was never shown.
std::uint32_t IdOf(const QWidget& widget) {
    const QWidget* const window = widget.window();
    const bool isThere = window->testAttribute(Qt::WA_WState_Created);
    return isThere ? static_cast<std::uint32_t>(window->winId()) : 0;
}

/// Brings the edges of a rectangle into an area: its part inside or, when it lies outside, a line
/// on the nearest edge.
QRect Clamped(const QRect& rect, const QRect& area) {
    if (area.isEmpty()) return rect;
    const auto across = [&](int x) { return std::clamp(x, area.left(), area.right()); };
    const auto down = [&](int y) { return std::clamp(y, area.top(), area.bottom()); };
    return {QPoint(across(rect.left()), down(rect.top())),
            QPoint(across(rect.right()), down(rect.bottom()))};
}

/// The part of a widget's rectangle that is in view, in the widget's coordinates: every parent may
/// be scrolled.
QRect InView(const QWidget& widget, QRect rect) {
    rect = Clamped(rect, widget.rect());
    if (widget.isWindow() || widget.parentWidget() == nullptr) return rect;
    const QPoint offset = widget.pos();
    return InView(*widget.parentWidget(), rect.translated(offset)).translated(-offset);
}

class WidgetOwnerForm : public OwnerForm {
  public:
    explicit WidgetOwnerForm(QWidget* window) : window_(window) {}

    std::int32_t Left() const override { return PixelsToTwips(Frame().left()); }
    std::int32_t Top() const override { return PixelsToTwips(Frame().top()); }
    std::int32_t Width() const override { return PixelsToTwips(Frame().width()); }
    std::int32_t Height() const override { return PixelsToTwips(Frame().height()); }
    bool Exists() const override { return window_ != nullptr; }
    void Refresh() override { Form().repaint(); }
    std::uint32_t Window() const override { return IdOf(Form()); }

  private:
    QWidget& Form() const { return Existing(window_, u"window"); }
    QRect Frame() const { return WindowOpening::FrameOf(Form()); }

    QPointer<QWidget> window_;
};

/// What all targets have in common: a place in pixels and its screen.
class PixelTarget : public PopupTarget {
  public:
    Rect Place() const override { return ToRect(Seen()); }
    Rect Screen() const override {
        const QScreen* const screen = QGuiApplication::screenAt(Seen().center());
        return ToRect(WindowOpening::UsableArea(
            &Existing(screen != nullptr ? screen : OwnScreen(), u"screen")));
    }

  protected:
    /// The visible part of the target.
    virtual QRect Seen() const = 0;
    /// The screen for a target that is on none.
    virtual const QScreen* OwnScreen() const = 0;
};

/// What a widget and a cell have in common.
class WidgetTarget : public PixelTarget {
  public:
    bool IsRightToLeft() const override { return Widget().isRightToLeft(); }
    std::uint32_t Window() const override { return IdOf(Widget()); }

  protected:
    /// The widget, which must exist.
    virtual const QWidget& Widget() const = 0;
    /// The target's place in the widget.
    virtual QRect Inside() const = 0;

  private:
    QRect Seen() const override {
        const QRect inside = InView(Widget(), Inside());
        return QRect(Widget().mapToGlobal(inside.topLeft()), inside.size());
    }
    const QScreen* OwnScreen() const override { return Widget().screen(); }
};

class WholeWidgetTarget : public WidgetTarget {
  public:
    explicit WholeWidgetTarget(const QWidget* widget) : widget_(widget) {}
    bool Exists() const override { return widget_ != nullptr; }

  protected:
    const QWidget& Widget() const override { return Existing(widget_, u"control"); }
    QRect Inside() const override { return Widget().rect(); }

  private:
    QPointer<const QWidget> widget_;
};

class CellTarget : public WidgetTarget {
  public:
    CellTarget(const QAbstractItemView* view, const QModelIndex& cell) : view_(view), cell_(cell) {}
    bool Exists() const override { return view_ != nullptr && cell_.isValid(); }

  protected:
    const QWidget& Widget() const override { return *View().viewport(); }
    QRect Inside() const override { return View().visualRect(cell_); }

  private:
    const QAbstractItemView& View() const {
        if (!Exists()) throw RuntimeError(Fault::ObjectNotSet, u"cell");
        return *view_;
    }

    QPointer<const QAbstractItemView> view_;
    QPersistentModelIndex cell_;
};

class PlaceTarget : public PixelTarget {
  public:
    explicit PlaceTarget(const QRect& place) : place_(place) {}
    bool Exists() const override { return true; }

  private:
    QRect Seen() const override { return place_; }
    const QScreen* OwnScreen() const override { return QGuiApplication::primaryScreen(); }

    QRect place_;
};

}  // namespace

std::shared_ptr<OwnerForm> AsOwnerForm(QWidget* window) {
    return window == nullptr ? nullptr : std::make_shared<WidgetOwnerForm>(window->window());
}

std::shared_ptr<PopupTarget> Beside(QWidget* widget) {
    return widget == nullptr ? nullptr : std::make_shared<WholeWidgetTarget>(widget);
}

std::shared_ptr<PopupTarget> Beside(QAbstractItemView* view, const QModelIndex& cell) {
    return view == nullptr ? nullptr : std::make_shared<CellTarget>(view, cell);
}

std::shared_ptr<PopupTarget> Beside(const QRect& place) {
    return std::make_shared<PlaceTarget>(place);
}

}  // namespace halvek
