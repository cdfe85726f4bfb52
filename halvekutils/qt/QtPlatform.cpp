// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/platform/PrinterSource.h>
#include <halvekutils/printers/CupsPrinters.h>
#include <halvekutils/qt/QtPlatform.h>
#include <halvekutils/qt/QtText.h>
#include <halvekutils/qt/forms/StockMessage.h>
#include <halvekutils/qt/forms/frmCalculator.h>
#include <halvekutils/qt/forms/frmCalendar.h>
#include <halvekutils/qt/forms/frmColor.h>
#include <halvekutils/qt/forms/frmDebug.h>
#include <halvekutils/qt/forms/frmMessageBox.h>
#include <halvekutils/qt/forms/frmSelectGrid.h>
#include <halvekutils/qt/help/HelpViewer.h>
#include <halvekutils/qt/helpers/CloseBox.h>
#include <halvekutils/qt/helpers/Metrics.h>
#include <halvekutils/qt/helpers/PlainTextLayout.h>
#include <halvekutils/qt/helpers/WindowOpening.h>

#include <QApplication>
#include <QFontDatabase>
#include <QScreen>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <vector>

namespace halvek {

namespace {

void RequireUserInterfaceThread() {
    const auto* const app = qobject_cast<QApplication*>(QCoreApplication::instance());
    if (app == nullptr) throw RuntimeError(Fault::ObjectNotSet, u"QApplication");
    if (app->thread() != QThread::currentThread()) {
        throw RuntimeError(Fault::InvalidArgument, u"not the user-interface thread");
    }
}

Rect UsableRect(const QScreen* screen) {
    if (screen == nullptr) throw RuntimeError(Fault::DeviceError, u"no screen");
    return ToRect(WindowOpening::UsableArea(screen));
}

/// Names an installed face for one that the dialogs use and the desktop may lack. Qt takes it only
/// then; to ask here as well would be a quarter of what the library adds to a host's start.
void SubstituteFace(const QString& wanted, QFontDatabase::SystemFont closest) {
    QFont::insertSubstitution(wanted, QFontDatabase::systemFont(closest).family());
}

}  // namespace

struct QtPlatform::Private {
    HelpViewer& Help() {
        if (help == nullptr) help = std::make_unique<HelpViewer>();
        return *help;
    }

    void ShowModeless(const std::shared_ptr<MessageBox>& box);
    void Drop(const frmMessageBox* window) {
        std::erase_if(modeless, [&](const auto& open) { return open.get() == window; });
    }

    std::unique_ptr<HelpViewer> help;
    std::vector<std::unique_ptr<frmMessageBox>> modeless;
    std::unique_ptr<frmDebug> debug;
};

void QtPlatform::Private::ShowModeless(const std::shared_ptr<MessageBox>& box) {
    frmMessageBox* const window = modeless.emplace_back(std::make_unique<frmMessageBox>(box)).get();
    // Later, not at once: the window is still running the code that emits this.
    QObject::connect(
        window, &frmMessageBox::Ended, window, [this, window] { Drop(window); },
        Qt::QueuedConnection);
    try {
        window->ShowModeless();
    } catch (...) {
        Drop(window);
        throw;
    }
}

QtPlatform::QtPlatform() : d_(std::make_unique<Private>()) {
    RequireUserInterfaceThread();
    SubstituteFace(QStringLiteral("Tahoma"), QFontDatabase::GeneralFont);
    SubstituteFace(QStringLiteral("Courier New"), QFontDatabase::FixedFont);
    WindowOpening::OfApplication();  // from now on it knows the active window
    Install();
}

QtPlatform::~QtPlatform() {
    Uninstall();
}

std::int32_t QtPlatform::TextWidth(TextIn text, const FontSpec& font) const {
    return PixelsToTwips(std::ceil(PlainTextLayout(ToQString(text), ToQFont(font)).Width()));
}

std::int32_t QtPlatform::TextHeight(TextIn text, const FontSpec& font) const {
    return PixelsToTwips(std::ceil(PlainTextLayout(ToQString(text), ToQFont(font)).Height()));
}

std::int32_t QtPlatform::WrappedHeight(TextIn text, const FontSpec& font,
                                       std::int32_t width) const {
    PlainTextLayout layout(ToQString(text), ToQFont(font));
    return PixelsToTwips(std::ceil(layout.FoldedHeight(TwipsToPixels(width))));
}

void QtPlatform::Beep() {
    // At once, but on another thread, whose calls are refused with a beep, when the user's is free
    QMetaObject::invokeMethod(qApp, [] { QApplication::beep(); });
}

void QtPlatform::ShowStockMessage(TextIn text, StockIcon icon, TextIn title) {
    frmMessageBox(MakeStockMessage(text, icon, title, *this)).ShowModal();
}

void QtPlatform::OnOutsideAddress(std::function<bool(TextIn address)> open) {
    d_->Help().SetOutsideOpener(std::move(open));
}

void QtPlatform::ShowHelpContext(const std::filesystem::path& file, std::int32_t contextId) {
    d_->Help().ShowContext(file, contextId);
}

void QtPlatform::ShowHelpTopic(const std::filesystem::path& file, TextIn topic) {
    d_->Help().ShowTopic(file, topic);
}

Size QtPlatform::ScreenSize() const {
    const Rect usable = ScreenRect();
    return {usable.width, usable.height};
}

Rect QtPlatform::ScreenRect() const {
    return UsableRect(WindowOpening::OfApplication().Screen());
}

Rect QtPlatform::ScreenRectAt(Point point) const {
    const QPoint pixels(TwipsToPixels(point.left), TwipsToPixels(point.top));
    const QScreen* const screen = QGuiApplication::screenAt(pixels);
    return screen != nullptr ? UsableRect(screen) : ScreenRect();
}

Size QtPlatform::FrameSize() const {
    const QSize added = WindowOpening::FrameSize();
    return {PixelsToTwips(added.width()), PixelsToTwips(added.height())};
}

HeldKeys QtPlatform::KeysHeld() const {
    const Qt::KeyboardModifiers held = QGuiApplication::queryKeyboardModifiers();
    return {held.testFlag(Qt::ShiftModifier), held.testFlag(Qt::AltModifier),
            held.testFlag(Qt::ControlModifier)};
}

void QtPlatform::RemoveCloseButton(std::int32_t window) {
    QWidget* const found = QWidget::find(static_cast<std::uint32_t>(window));
    if (found != nullptr && found->isWindow()) RemoveCloseBox(*found);
}

std::unique_ptr<PrinterSource> QtPlatform::Printers() {
    return std::make_unique<CupsPrinters>();
}

void QtPlatform::Show(const std::shared_ptr<MessageBox>& box, Modality modality) {
    const auto shown = std::ranges::find(d_->modeless, box, &frmMessageBox::Box);
    if (shown != d_->modeless.end()) {
        if (modality == Modality::Modeless) return;
        const std::unique_ptr<frmMessageBox> form = std::move(*shown);
        d_->modeless.erase(shown);
        form->ShowModal();
        return;
    }
    if (modality == Modality::Modal) {
        frmMessageBox(box).ShowModal();
        return;
    }
    d_->ShowModeless(box);
    box->ShownModeless();
}

void QtPlatform::Show(const std::shared_ptr<Calculator>& calculator) {
    frmCalculator(calculator, *this).ShowModal();
}

void QtPlatform::Show(const std::shared_ptr<Calendar>& calendar) {
    frmCalendar(calendar, *this).ShowModal();
}

void QtPlatform::Show(const std::shared_ptr<ColorPalette>& palette) {
    frmColor(palette, *this).ShowModal();
}

void QtPlatform::Show(const std::shared_ptr<DebugConsole>& console) {
    if (d_->debug == nullptr || d_->debug->Console() != console) {
        d_->debug = std::make_unique<frmDebug>(console, *this);
    }
    d_->debug->ShowInBackground();
}

void QtPlatform::Show(const std::shared_ptr<SelectGrid>& grid) {
    frmSelectGrid(grid, *this).ShowModal();
}

}  // namespace halvek
