// SPDX-License-Identifier: MIT
#include "Desk.h"

#include "Providers.h"
#include "Record.h"

#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>

#include <QAction>
#include <QHeaderView>
#include <QMenuBar>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

#include <utility>

using namespace halvek;

namespace {

constexpr std::int64_t kServiceCents = 300;

/// Amounts in a table are typed into a currency field.
class AmountDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex&) const override {
        auto* const editor = new CurrencyLineEdit(parent);
        editor->setObjectName("Cell");
        return editor;
    }
};

/// The page in the window, with a default button as dialogs have.
class Page : public QDialog {
  public:
    explicit Page(QWidget* parent) : QDialog(parent) { setWindowFlags(Qt::Widget); }
    void reject() override { Record::Got("escaped"); }
};

QString Blank(const std::u16string& text) {
    const QString shown = ToQString(text);
    return shown.isNull() ? QString("") : shown;
}

}  // namespace

Desk::Desk(std::shared_ptr<Utils> utils) : utils_(std::move(utils)), page_(new Page(this)) {
    setObjectName("Desk");
    setWindowTitle("Desk");
    auto* const columns = new QHBoxLayout(page_);
    columns->addLayout(left_);
    columns->addLayout(right_);
    setCentralWidget(page_);
    BuildFields();
    BuildRecords();
    BuildDialogButtons();
    BuildDates();
    BuildLists();
    BuildClosingButtons();
    BuildActions();
    utils_->InitServerTime(QString("1/1/2001 10:00"));
    note_->setFocus();
}

void Desk::BuildFields() {
    const struct {
        QLineEdit* field;
        const char* name;
    } rows[] = {{note_, "Note"}, {amount_, "Amount"}, {adjustment_, "Adjustment"},
                {from_, "From"}, {to_, "To"},         {visit_, "Visit"},
                {fee_, "Fee"},   {total_, "Total"}};
    for (const auto& [field, name] : rows) {
        field->setObjectName(name);
        left_->addRow(name, field);
    }
    MakeCurrencyField(amount_);
    MakeSignedCurrencyField(adjustment_);
    MakeCurrencyField(from_);
    MakeCurrencyField(to_);
    CheckCurrencyRange(from_, to_, u"From", u"To");
    note_->setText("note");
    connect(fee_, &CurrencyLineEdit::CentsChanged, this, [this](std::optional<std::int64_t> cents) {
        SetCurrencyCents(total_, cents.value_or(0) + kServiceCents);
    });
}

void Desk::BuildRecords() {
    fees_.setRowCount(1);
    fees_.setColumnCount(1);
    fees_.setItem(0, 0, new QStandardItem);
    mapper_.setModel(&fees_);
    mapper_.addMapping(fee_, 0);
    mapper_.toFirst();
    connect(&fees_, &QStandardItemModel::dataChanged, this,
            [this] { Record::Got("fee is", fees_.index(0, 0).data().toString()); });

    payments_.setRowCount(2);
    payments_.setColumnCount(2);
    for (const int row : {0, 1}) {
        for (const int column : {0, 1}) payments_.setItem(row, column, new QStandardItem(""));
    }
    table_->setObjectName("Payments");
    table_->setModel(&payments_);
    table_->setItemDelegate(new AmountDelegate(table_));
    table_->horizontalHeader()->hide();
    table_->setFixedHeight(80);
    connect(&payments_, &QStandardItemModel::dataChanged, this,
            [](const QModelIndex& cell) { Record::Got("payment is", cell.data().toString()); });
    right_->addWidget(table_);
}

QPushButton* Desk::AddButton(const QString& name, const std::function<void()>& act) {
    auto* const button = new QPushButton(name);
    button->setObjectName(name);
    button->setAutoDefault(false);
    if (act) connect(button, &QPushButton::clicked, this, act);
    return button;
}

void Desk::BuildDialogButtons() {
    right_->addWidget(
        AddButton("Calculator", [this] { Record::Got("calculator", Blank(utils_->Calculate())); }));
    right_->addWidget(AddButton("Figure", [this] {
        const std::u16string result = utils_->Calculate(amount_->text());
        if (!result.empty()) amount_->setText(ToQString(result));
        Record::Got("figured", Blank(result));
    }));
    QPushButton* const day = AddButton("Day", {});
    connect(day, &QPushButton::clicked, this, [this, day] {
        Record::Got(
            "day", Blank(utils_->ShowCalendarAndCalculateCoordinates(Beside(day), visit_->text())));
    });
    QPushButton* const color = AddButton("Color", {});
    connect(color, &QPushButton::clicked, this, [this, color] {
        Record::Got(
            "color",
            Blank(utils_->ShowColorAndCalculateCoordinates(Beside(color))).replace('\t', ' '));
    });
    right_->addWidget(day);
    right_->addWidget(color);
    // The button that a click through a closed pop-up would press
    QPushButton* const beneath = AddButton("Beneath", [] { Record::Got("pressed through"); });
    beneath->setFixedHeight(260);
    right_->addWidget(beneath);
}

void Desk::BuildDates() {
    left_->addRow(AddButton("Clock", [this] {
        utils_->InitServerTime(note_->text());
        Record::Got("clock", ToQString(DateTimeText(utils_->ServerTime())).left(16));
    }));
    left_->addRow(AddButton("Digits", [this] {
        Record::Got("date", Blank(utils_->ConvertNumberToDate(note_->text(), true)));
    }));
}

/// What is chosen before stands in the field for the visit.
void Desk::BuildLists() {
    const std::pair<const char*, QString> lists[] = {{"Providers", ProviderList()},
                                                     {"Insurance", InsuranceList()}};
    for (const auto& [name, list] : lists) {
        QPushButton* const button = AddButton(name, {});
        connect(button, &QPushButton::clicked, this, [this, button, entries = list] {
            const QString chosen = Blank(utils_->ShowSelectionGridAndCalculateCoordinates(
                button->text(), entries, visit_->text(), Beside(button)));
            Record::Got(button->text().toLower(), chosen);
        });
        left_->addRow(button);
    }
}

void Desk::BuildClosingButtons() {
    auto* const urgent = new QCheckBox("Urgent");
    urgent->setObjectName("Urgent");
    connect(urgent, &QCheckBox::clicked, this,
            [this](bool on) { Record::Got(on ? "urgent" : "not urgent", amount_->text()); });
    left_->addRow(urgent);
    auto* const cash = new QRadioButton("Cash");
    cash->setObjectName("Cash");
    cash->setFocusPolicy(Qt::NoFocus);  // pressed while the field keeps the focus
    connect(cash, &QRadioButton::clicked, this, [this] { Record::Got("cash", amount_->text()); });
    left_->addRow(cash);

    auto* const buttons = new QDialogButtonBox;
    QPushButton* const post = buttons->addButton("Post", QDialogButtonBox::AcceptRole);
    post->setDefault(true);
    connect(post, &QPushButton::clicked, this, [this] { Record::Got("posted", amount_->text()); });
    QPushButton* const cancel = buttons->addButton("Cancel", QDialogButtonBox::RejectRole);
    connect(cancel, &QPushButton::clicked, this, [] { Record::Got("cancelled"); });
    QPushButton* const help = buttons->addButton("Help", QDialogButtonBox::HelpRole);
    connect(help, &QPushButton::clicked, this, [] { Record::Got("help"); });
    for (QPushButton* const button : {post, cancel, help}) button->setObjectName(button->text());
    left_->addRow(buttons);
    // Outside the box: the host itself marks it as needing no valid fields
    QPushButton* const quit = AddButton("Quit", [] { Record::Got("quit"); });
    quit->setProperty("causesValidation", false);
    left_->addRow(quit);
}

void Desk::BuildActions() {
    auto* const save = new QAction("&Save", this);
    save->setShortcut(QKeySequence::Save);
    connect(save, &QAction::triggered, this, [this] { Record::Got("saved", amount_->text()); });
    menuBar()->addMenu("&File")->addAction(save);
    QToolBar* const bar = addToolBar("Tools");
    bar->addAction(save);
    bar->widgetForAction(save)->setObjectName("SaveTool");
    statusBar()->showMessage("Ready");
}

void Desk::SaveByItself() {
    if (LeaveCurrencyFields(this)) Record::Got("saved", amount_->text());
}

void Desk::Load(const QString& field, const QString& text) {
    if (field == "Autosave") {
        QTimer::singleShot(0, this, [this] { SaveByItself(); });
    } else if (field == "Fee.cents") {
        fee_->setProperty("cents", text);
    } else if (field.endsWith(".cents")) {
        SetCurrencyCents(findChild<QLineEdit*>(field.section('.', 0, 0)), text.toLongLong());
    } else if (field == "Payments") {
        payments_.setData(payments_.index(0, 0), text);
    } else if (field == "Fee") {
        fees_.setData(fees_.index(0, 0), text);
    } else if (auto* const line = findChild<QLineEdit*>(field)) {
        line->setText(text);
    }
}
