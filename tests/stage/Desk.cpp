// SPDX-License-Identifier: MIT
#include "Desk.h"

#include "Calls.h"
#include "Record.h"

#include <halvekutils/qt/CurrencyField.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/QtText.h>

using namespace halvek;

namespace {

constexpr std::int64_t kServiceCents = 300;

/// The page in the window, with a default button as dialogs have.
class Page : public QDialog {
  public:
    explicit Page(QWidget* parent) : QDialog(parent) { setWindowFlags(Qt::Widget); }
    void reject() override { Record::Got("escaped"); }
};

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
    BuildLibraryButtons();
    BuildClosingButtons();
    BuildActions();
    Field("Note").setFocus();
}

void Desk::BuildFields() {
    for (const QString name :
         {"Note", "Amount", "Adjustment", "From", "To", "Visit", "Fee", "Total"}) {
        QLineEdit* const field = name == "Fee" ? fee_ : new QLineEdit;
        field->setObjectName(name);
        left_->addRow(name, field);
    }
    for (const char* const name : {"Amount", "From", "To"}) MakeCurrencyField(&Field(name));
    MakeSignedCurrencyField(&Field("Adjustment"));
    CheckCurrencyRange(&Field("From"), &Field("To"), u"From", u"To");
    Field("Note").setText("note");
    connect(fee_, &CurrencyLineEdit::CentsChanged, this, [this](std::optional<std::int64_t> cents) {
        SetCurrencyCents(&Field("Total"), cents.value_or(0) + kServiceCents);
    });
}

void Desk::BuildRecords() {
    amountEditors_.registerEditor(QMetaType::QString,
                                  new QStandardItemEditorCreator<CurrencyLineEdit>);
    mapper_.setModel(&fees_);
    mapper_.addMapping(fee_, 0);
    mapper_.toFirst();
    for (const int cell : {0, 1, 2, 3})
        payments_.setItem(cell / 2, cell % 2, new QStandardItem(""));
    auto* const table = new QTableView;
    table->setObjectName("Payments");
    table->setModel(&payments_);
    auto* const delegate = new QStyledItemDelegate(table);
    delegate->setItemEditorFactory(&amountEditors_);
    table->setItemDelegate(delegate);
    table->horizontalHeader()->hide();
    table->setFixedHeight(80);
    right_->addWidget(table);
    for (auto* const model : {&fees_, &payments_}) {
        const QString what = model == &fees_ ? "fee is" : "payment is";
        connect(model, &QStandardItemModel::dataChanged, this,
                [what](const QModelIndex& cell) { Record::Got(what, cell.data().toString()); });
    }
}

/// Buttons that record what the library gives. What is chosen before stands in the visit's field.
void Desk::BuildLibraryButtons() {
    using Act = std::function<QString(QPushButton & button)>;
    const auto choose = [this](const QString& list) {
        return [this, values = ListNamed(list)](QPushButton& button) {
            return ToQString(utils_->ShowSelectionGridAndCalculateCoordinates(
                button.text(), values, Field("Visit").text(), Beside(&button)));
        };
    };
    const Act figure = [this](QPushButton&) {
        const QString result = ToQString(utils_->Calculate(Amount()));
        if (!result.isEmpty()) Field("Amount").setText(result);
        return result;
    };
    const Act day = [this](QPushButton& button) {
        return ToQString(
            utils_->ShowCalendarAndCalculateCoordinates(Beside(&button), Field("Visit").text()));
    };
    const Act color = [this](QPushButton& button) {
        return ToQString(utils_->ShowColorAndCalculateCoordinates(Beside(&button)))
            .replace('\t', ' ');
    };
    const struct {
        QLayout* column;
        const char *name, *got;
        Act act;
    } rows[] = {
        {right_, "Calculator", "calculator",
         [this](QPushButton&) { return ToQString(utils_->Calculate()); }},
        {right_, "Figure", "figured", figure},
        {right_, "Day", "day", day},
        {right_, "Color", "color", color},
        {right_, "Beneath", "pressed through", [](QPushButton&) { return QString(); }},
        {left_, "Providers", "providers", choose("300 Providers")},
        {left_, "Insurance", "insurance", choose("Three Insurances")},
        // The host itself marks it as needing no valid fields.
        {left_, "Quit", "quit", [](QPushButton&) { return QString(); }},
    };
    for (const auto& [column, name, got, act] : rows) {
        auto* const button = new QPushButton(name);
        button->setObjectName(name);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this,
                [got = got, act = act, button] { Record::Got(got, act(*button)); });
        column->addWidget(button);
    }
    // It would be pressed by a click through a closed pop-up.
    findChild<QPushButton*>("Beneath")->setFixedHeight(260);
    findChild<QPushButton*>("Quit")->setProperty("causesValidation", false);
}

void Desk::BuildClosingButtons() {
    auto* const urgent = new QCheckBox("Urgent");
    connect(urgent, &QCheckBox::clicked, this,
            [this](bool on) { Record::Got(on ? "urgent" : "not urgent", Amount()); });
    auto* const cash = new QRadioButton("Cash");
    cash->setFocusPolicy(Qt::NoFocus);  // pressed while the field keeps the focus
    connect(cash, &QRadioButton::clicked, this, [this] { Record::Got("cash", Amount()); });
    auto* const box = new QDialogButtonBox;
    QPushButton* const post = box->addButton("Post", QDialogButtonBox::AcceptRole);
    post->setDefault(true);
    connect(post, &QPushButton::clicked, this, [this] { Record::Got("posted", Amount()); });
    QPushButton* const cancel = box->addButton("Cancel", QDialogButtonBox::RejectRole);
    connect(cancel, &QPushButton::clicked, this, [] { Record::Got("cancelled"); });
    QPushButton* const help = box->addButton("Help", QDialogButtonBox::HelpRole);
    connect(help, &QPushButton::clicked, this, [] { Record::Got("help"); });
    for (QAbstractButton* const button :
         std::initializer_list<QAbstractButton*>{urgent, cash, post, cancel, help})
        button->setObjectName(button->text());
    for (QWidget* const row : std::initializer_list<QWidget*>{urgent, cash, box})
        left_->addRow(row);
}

void Desk::BuildActions() {
    auto* const save = new QAction("&Save", this);
    save->setShortcut(QKeySequence::Save);
    connect(save, &QAction::triggered, this, [this] { Record::Got("saved", Amount()); });
    menuBar()->addMenu("&File")->addAction(save);
    QToolBar* const bar = addToolBar("Tools");
    bar->addAction(save);
    bar->widgetForAction(save)->setObjectName("SaveTool");
    statusBar()->showMessage("Ready");
}

void Desk::Load(const QString& field, const QString& text) {
    if (field == "Autosave") {
        QTimer::singleShot(0, this, [this] {
            if (LeaveCurrencyFields(this)) Record::Got("saved", Amount());
        });
    } else if (field == "Fee.cents") {
        fee_->setProperty("cents", text);
    } else if (field.endsWith(".cents")) {
        SetCurrencyCents(&Field(field.section('.', 0, 0)), text.toLongLong());
    } else if (field == "Fee" || field == "Payments") {
        QStandardItemModel& model = field == "Fee" ? fees_ : payments_;
        model.setData(model.index(0, 0), text);
    } else {
        Field(field).setText(text);
    }
}
