#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/qt/QtControls.h>
#include <halvekutils/qt/forms/Metrics.h>

#include <QPointer>
#include <QWidget>

namespace halvek {

namespace {

class WidgetOwnerForm : public OwnerForm {
  public:
    explicit WidgetOwnerForm(QWidget* window) : window_(window) {}

    std::int32_t Left() const override { return PixelsToTwips(Frame().left()); }
    std::int32_t Top() const override { return PixelsToTwips(Frame().top()); }
    std::int32_t Width() const override { return PixelsToTwips(Frame().width()); }
    std::int32_t Height() const override { return PixelsToTwips(Frame().height()); }
    bool Exists() const override { return window_ != nullptr; }
    void Refresh() override { Window().repaint(); }

  private:
    QWidget& Window() const {
        if (window_ == nullptr) throw RuntimeError(Fault::ObjectNotSet, u"window");
        return *window_;
    }
    QRect Frame() const { return Window().frameGeometry(); }

    QPointer<QWidget> window_;
};

}  // namespace

std::shared_ptr<OwnerForm> AsOwnerForm(QWidget* window) {
    return window == nullptr ? nullptr : std::make_shared<WidgetOwnerForm>(window->window());
}

}  // namespace halvek
