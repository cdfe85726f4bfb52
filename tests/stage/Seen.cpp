// SPDX-License-Identifier: MIT
#include "Seen.h"

#include <halvekutils/core/Utils.h>
#include <halvekutils/qt/CurrencyField.h>

namespace {

const QWidget* Find(const QWidget& front, const QString& name) {
    if (front.objectName() == name) return &front;
    for (const QWidget* const child : front.findChildren<QWidget*>(name)) {
        if (child->isVisible()) return child;
    }
    return nullptr;
}

std::optional<QPoint> PlaceOfCell(const QWidget& grid, const QString& cell) {
    const auto* const view = qobject_cast<const QAbstractItemView*>(&grid);
    if (view == nullptr) return std::nullopt;
    if (const auto* const table = qobject_cast<const QTableView*>(view); table && cell == "header")
        return table->horizontalHeader()->mapToGlobal(table->horizontalHeader()->rect().center());
    const QModelIndex index =
        view->model()->index(cell.section(',', 0, 0).toInt(), cell.section(',', 1).toInt());
    return view->viewport()->mapToGlobal(view->visualRect(index).center());
}

/// The cells as their view paints them: numbers in its language.
QString RowOf(const QAbstractItemView& view, int row) {
    QStringList cells;
    for (int column = 0; column < view.model()->columnCount(); ++column) {
        const QVariant cell = view.model()->index(row, column).data();
        const bool isText = cell.typeId() == QMetaType::QString;
        cells += isText ? cell.toString() : view.locale().toString(cell.toInt());
    }
    return cells.join(' ');
}

/// The code of the current entry, if it is in view.
QString CurrentOf(const QAbstractItemView& view) {
    const QRect place = view.visualRect(view.currentIndex());
    const bool isShown = view.viewport()->rect().contains(place);
    return isShown ? view.currentIndex().data().toString() : QString("out of view");
}

QString TextOf(const QWidget& control) {
    for (const char* const property : {"text", "plainText"}) {
        const QVariant text = control.property(property);
        if (text.isValid()) return text.toString().replace('\n', ';');
    }
    // Of a picker, the entry that a screen reader says
    if (qobject_cast<const QAbstractItemView*>(&control) != nullptr) {
        auto* const list = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&control));
        QAccessibleInterface* const entry = list == nullptr ? nullptr : list->child(0);
        if (entry != nullptr) return entry->text(QAccessible::Name);
    }
    return control.accessibleName();
}

QString PartOf(const QWidget& control, const QString& part) {
    if (const auto* const view = qobject_cast<const QAbstractItemView*>(&control)) {
        if (part == "current") return CurrentOf(*view);
        return RowOf(*view, part.mid(3).toInt());
    }
    if (const auto* const line = qobject_cast<const QLineEdit*>(&control)) {
        const auto cents = halvek::CurrencyCents(line);
        if (part == "selected") return line->selectedText();
        if (part == "aligned") return line->alignment() & Qt::AlignRight ? "right" : "left";
        if (part == "cents") return cents ? QString::number(*cents) : QString();
    }
    if (part == "inside") {
        const QRect screen = control.screen()->availableGeometry();
        return QVariant(screen.contains(control.window()->windowHandle()->frameGeometry()))
            .toString();
    }
    return control.property(part.toUtf8()).toString();
}

/// Adds every usable control that a screen reader meets: its name in the program (none for a cell),
/// its role and its accessible name.
void Hear(QAccessibleInterface* part, QStringList& heard) {
    if (part == nullptr || part->state().invisible) return;
    const auto role = QMetaEnum::fromType<QAccessible::Role>().valueToKey(part->role());
    const QString object = part->object() == nullptr ? "" : part->object()->objectName();
    const QString name = part->text(QAccessible::Name);
    static const QSet<int> kUsed = {QAccessible::Dialog, QAccessible::Button,
                                    QAccessible::ButtonMenu, QAccessible::Graphic,
                                    QAccessible::EditableText};
    const bool isCell = part->object() == nullptr;
    const bool isUsed = part->state().focusable || kUsed.contains(part->role());
    if (isCell ? name.size() > 2 : isUsed)
        heard += QString("%1 %2 %3").arg(object, role, name).trimmed();
    for (int i = 0; i < part->childCount(); ++i) Hear(part->child(i), heard);
}

QString HeardIn(const QWidget& front) {
    QStringList heard;
    Hear(QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&front)), heard);
    return heard.join(", ");
}

QString HeldKeys() {
    const auto utils = halvek::Utils::CurrentUtils();
    return QString(utils->ShiftPressed() ? "Shift " : "") + (utils->CtrlPressed() ? "Ctrl " : "") +
           (utils->AltPressed() ? "Alt" : "");
}

}  // namespace

std::optional<QPoint> PlaceOf(const QWidget& front, const QString& name) {
    const QWidget* const control = Find(front, name.section(':', 0, 0));
    if (control == nullptr) return std::nullopt;
    const QString place = name.section(':', 1);
    if (place.contains(',') || place == "header") return PlaceOfCell(*control, place);
    constexpr int kInside = 6;
    const QPoint middle = control->rect().center();
    return control->mapToGlobal(place == "left" ? QPoint(kInside, middle.y()) : middle);
}

QString TextSeen(const QWidget& front, const QString& name) {
    if (name == "focus") {
        return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : "nobody";
    }
    if (name == "keys") return HeldKeys().trimmed();
    if (name == "heard") return HeardIn(front);
    if (name == "title") return front.windowHandle()->title();
    if (name == "clipboard") return QApplication::clipboard()->text().replace("\r\n", ";");
    const QWidget* const control = Find(front, name.section('.', 0, 0));
    if (control == nullptr) return "not seen";
    return name.contains('.') ? PartOf(*control, name.section('.', 1)) : TextOf(*control);
}
