// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/help/CompiledHelp.h>
#include <halvekutils/qt/help/HelpPages.h>

#include <QTextBrowser>
#include <QUrl>

#include <memory>
#include <string>

namespace halvek {

class SpokenNotice;

/// Shows the pages of a compiled help file, and nothing else: whatever a page asks for, only
/// objects of that file are read.
///
/// A page's address has the scheme "help", a host that names the file, and the path.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT

  public:
    explicit HelpBrowser(QWidget* parent = nullptr);
    ~HelpBrowser() override;

    /// Switches to another file and drops the history of the one before. Null for a file that
    /// cannot be read; `fault` says why.
    void SetHelp(std::shared_ptr<CompiledHelp> help, const std::u16string& fault = {});

    void ShowTopic(const HelpTopic& topic) { setSource(AddressOf(topic)); }
    void ShowMissingContext(std::int32_t contextId);

    QUrl AddressOf(const HelpTopic& topic) const { return HelpAddressOf(Root(), topic); }
    /// True for an address within the file.
    bool IsInside(const QUrl& address) const;

    /// In percent of the ordinary size.
    int Zoom() const { return zoom_; }
    void SetZoom(int percent);

    QVariant loadResource(int type, const QUrl& name) override;

  public slots:
    void backward() override;
    void forward() override;
    void reload() override;

  signals:
    /// A page is on the screen; the browser's own signal comes before its text.
    void PageShown();
    /// Ctrl and the mouse wheel: 1 for larger, -1 for smaller.
    void ZoomAsked(int step);

  protected:
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
    void wheelEvent(QWheelEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    QUrl Root() const;
    HelpPage PageAt(const QUrl& address);
    QImage PictureAt(const QUrl& address);
    void UsePaper(bool isPaper);
    double ScrolledTo() const;
    void ScrollTo(double place);
    void Settle();
    void ScaleFonts();

    std::shared_ptr<CompiledHelp> help_;
    std::u16string fault_;
    int fileNumber_ = 0;
    bool isFirstPage_ = false;  ///< of a file: the way back does not lead to the file before
    int zoom_ = 100;
    // Of the pictures on the page
    qint64 pixelsLeft_ = 0;
    qint64 timeLeft_ = 0;
    SpokenNotice* notice_;
};

}  // namespace halvek
