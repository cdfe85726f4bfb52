// SPDX-License-Identifier: MIT
#include <halvekutils/qt/help/HelpPrint.h>
#include <halvekutils/qt/helpers/EventGuard.h>

#include <QCoreApplication>
#include <QPageLayout>
#include <QPageSize>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QString>
#include <QTextDocument>

#include <memory>
#include <utility>

namespace halvek {

namespace {

constexpr QSize kSize(760, 680);
constexpr double kMargin = 15;  // millimetres

/// A preview that keeps its printer.
class Preview : public QPrintPreviewDialog {
  public:
    Preview(QWidget* parent, std::unique_ptr<QPrinter> printer)
        : QPrintPreviewDialog(printer.get(), parent), printer_(std::move(printer)) {}

  private:
    std::unique_ptr<QPrinter> printer_;
};

}  // namespace

void ShowPrintPreview(QWidget* parent, QTextDocument& page, const QString& title) {
    // Until the user prints, nothing asks the print scheduler.
    auto printer = std::make_unique<QPrinter>(QPrinter::ScreenResolution);
    printer->setDocName(title);
    printer->setPageMargins(QMarginsF(kMargin, kMargin, kMargin, kMargin), QPageLayout::Millimeter);
    auto* const preview = new Preview(parent, std::move(printer));
    preview->setObjectName(QLatin1String("frmPrintPreview"));
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->setWindowTitle(QCoreApplication::translate("HelpViewer", "Print: %1").arg(title));
    preview->resize(kSize);
    // The page that was shown when the preview was opened, whatever the viewer shows by then
    QTextDocument* const copy = page.clone(preview);
    copy->setDefaultFont(page.defaultFont());
    QObject::connect(preview, &QPrintPreviewDialog::paintRequested, preview,
                     [copy](QPrinter* target) {
                         GuardEvent(u"HelpViewer.Print", [&] { copy->print(target); });
                     });
    preview->open();
}

}  // namespace halvek
