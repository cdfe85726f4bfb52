// SPDX-License-Identifier: MIT
#include <halvekutils/base/Existing.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/helpers/EventGuard.h>
#include <halvekutils/qt/helpers/SheetRules.h>

#include <QAbstractItemView>
#include <QEvent>
#include <QFontInfo>
#include <QHeaderView>
#include <QPointer>
#include <QScopedValueRollback>
#include <QStyle>

#include <algorithm>

namespace halvek {

namespace {

QString FontRules(const QFont& font) {
    return QStringLiteral(
               "%1, %1 QHeaderView { font-family: \"%2\"; font-size: %3pt; font-weight: %4; "
               "font-style: %5; }\n")
        .arg(SheetSelector(), font.family().remove('"'))
        .arg(font.pointSizeF())
        .arg(font.bold() ? QStringLiteral("bold") : QStringLiteral("normal"),
             font.italic() ? QStringLiteral("italic") : QStringLiteral("normal"));
}

bool Has(QWidget& widget, const QFont& font) {
    widget.ensurePolished();
    const QFont& has = widget.font();
    return has.family() == font.family() && qFuzzyCompare(has.pointSizeF(), font.pointSizeF()) &&
           has.bold() == font.bold() && has.italic() == font.italic();
}

/// False when a style sheet has kept the widget, or the headers of a grid, from a font.
bool HasReached(QWidget& widget, const QFont& font) {
    const auto headers = widget.findChildren<QHeaderView*>(QString(), Qt::FindDirectChildrenOnly);
    return Has(widget, font) &&
           std::ranges::all_of(headers, [&](QHeaderView* header) { return Has(*header, font); });
}

void SetFont(QWidget& widget, const QFont& font) {
    widget.setFont(font);
    const bool mayNeedRules = font.pointSizeF() > 0 && !HasReached(widget, font);
    if (mayNeedRules || HasSheetRules(widget, SheetSubject::Font)) {
        SetSheetRules(widget, SheetSubject::Font, FontRules(font));
    }
}

/// Gives a widget its font again when a style sheet that the host sets later has replaced it, as
/// one for other colours may. A font that the host sets where no style sheet applies ends this.
class FontKeeper : public QObject {
  public:
    static FontKeeper& Of(QWidget& widget) {
        QObject* const found = widget.findChild<QObject*>(kName, Qt::FindDirectChildrenOnly);
        return found != nullptr ? *static_cast<FontKeeper*>(found) : *new FontKeeper(widget);
    }

    void Set(const QFont& font) {
        const QScopedValueRollback setting(isSetting_, true);
        font_ = font;
        SetFont(widget_, font);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        const bool isStyle = event->type() == QEvent::StyleChange;
        if (isSetting_ || (!isStyle && event->type() != QEvent::FontChange)) return false;
        GuardEvent(u"ControlFont.Change", [&] {
            const bool hasSheet = widget_.style()->inherits("QStyleSheetStyle");
            if (isStyle && hasSheet) Set(font_);
            if (!isStyle && !hasSheet && !Has(widget_, font_)) End();
        });
        return false;
    }

  private:
    static constexpr QLatin1String kName{"halvekFontKeeper"};

    explicit FontKeeper(QWidget& widget) : QObject(&widget), widget_(widget) {
        setObjectName(kName);
        widget.installEventFilter(this);
    }
    void End() {
        setObjectName({});
        widget_.removeEventFilter(this);
        deleteLater();
    }

    QWidget& widget_;
    QFont font_;
    bool isSetting_ = false;
};

/// Changes one thing about a widget's font, which a host's style sheet must not undo.
template <class Change>
void ChangeFont(QWidget& widget, const Change& change) {
    widget.ensurePolished();
    QFont font = widget.font();
    change(font);
    FontKeeper::Of(widget).Set(font);
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
