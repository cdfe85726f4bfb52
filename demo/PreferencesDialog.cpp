// SPDX-License-Identifier: MIT
#include "PreferencesDialog.h"

#include "widgets/Buttons.h"
#include "widgets/Card.h"
#include "widgets/RequiredColor.h"

#include <QDialogButtonBox>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace frontdesk {

namespace {

constexpr std::size_t kFormColors = 3;  // the first rows, before those of the schedule
constexpr int kSwatch = 18;
constexpr int kColumns = 3;

QIcon Swatch(halvek::Color color) {
    QPixmap pixmap(kSwatch, kSwatch);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(128, 128, 128));
    painter.setBrush(ToQColor(color));
    painter.drawRoundedRect(QRectF(0.5, 0.5, kSwatch - 1, kSwatch - 1), 4, 4);
    return pixmap;
}

}  // namespace

PreferencesDialog::PreferencesDialog(Desk& desk, QWidget* parent)
    : QDialog(parent), desk_(desk), showsPaid_(new QCheckBox("Show &visits that are paid")) {
    setWindowTitle("Preferences");
    CollectColors();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kMargin);
    QGridLayout* forms = AddGroup("Colors of the forms");
    QGridLayout* reasons = AddGroup("Colors of the schedule");
    for (std::size_t i = 0; i < colors_.size(); ++i)
        AddColor(i < kFormColors ? *forms : *reasons, i);
    AddGroup("Schedule")->addWidget(showsPaid_, 0, 0);
    showsPaid_->setChecked(desk_.ShowsPaidVisits());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { Save(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
}

void PreferencesDialog::CollectColors() {
    const auto prefs = desk_.Prefs();
    colors_ = {
        {"&Header", prefs->FormTopColor(),
         [prefs](halvek::Color color) { prefs->FormTopColor(color); }},
        {"Header &text", prefs->FormTextColor(),
         [prefs](halvek::Color color) { prefs->FormTextColor(color); }},
        {"&Required fields", prefs->RequiredFieldBackColor(),
         [prefs](halvek::Color color) { prefs->RequiredFieldBackColor(color); }},
    };
    for (const Reason& reason : desk_.Server().Reasons()) {
        colors_.push_back({reason.description, reason.color, [this, reason](halvek::Color color) {
                               if (color != reason.color)
                                   desk_.Server().SetReasonColor(reason.code, color);
                           }});
    }
}

QGridLayout* PreferencesDialog::AddGroup(const QString& heading) {
    auto* card = new Card(heading);
    auto* grid = new QGridLayout;
    grid->setSpacing(kGap);
    for (int i = 0; i < kColumns; ++i) grid->setColumnStretch(i, 1);
    card->Content().addLayout(grid);
    static_cast<QVBoxLayout*>(layout())->addWidget(card);
    return grid;
}

void PreferencesDialog::AddColor(QGridLayout& group, std::size_t index) {
    auto* button = new QPushButton(Swatch(colors_[index].color), colors_[index].name);
    MakeRoomy(*button);
    button->setAutoDefault(false);
    button->setIconSize({kSwatch, kSwatch});
    button->setAccessibleName("Color: " + QString(colors_[index].name).remove('&'));
    connect(button, &QPushButton::clicked, this, [this, button, index] {
        const auto color = desk_.ChooseColor(button);
        if (!color) return;
        colors_[index].color = *color;
        button->setIcon(Swatch(*color));
    });
    const int place = group.count();
    group.addWidget(button, place / kColumns, place % kColumns);
}

void PreferencesDialog::Save() {
    for (const ColorRow& row : colors_) row.store(row.color);
    desk_.ShowPaidVisits(showsPaid_->isChecked());
    if (desk_.SavePrefs()) accept();
}

}  // namespace frontdesk
