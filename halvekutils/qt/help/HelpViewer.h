// SPDX-License-Identifier: MIT
#pragma once

#include <halvekutils/base/TextIn.h>
#include <halvekutils/help/CompiledHelp.h>

#include <QMainWindow>
#include <QUrl>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

class QAction;
class QLabel;
class QSplitter;
class QTabWidget;

namespace halvek {

class FindBar;
class HelpBrowser;
class HelpEntryTree;
class HelpIndexPane;
class HelpSearchPane;

/// The window that shows compiled help: contents, index and search at the left, a page at the
/// right.
///
/// It is modeless and usable beside whatever the host shows: a modal dialog does not block it. It
/// opens no address outside its file.
class HelpViewer : public QMainWindow {
    Q_OBJECT

  public:
    HelpViewer();
    ~HelpViewer() override;

    /// Shows the topic of a context number, or what is wrong with the file or the topic; in that
    /// case it also throws, once the window is on the screen.
    void ShowContext(const std::filesystem::path& file, std::int32_t contextId);

    /// The same for a topic as hosts write it; empty for the file's first page.
    void ShowTopic(const std::filesystem::path& file, TextIn topic);

    /// Gets the addresses of links that lead out of the file, when the user follows them; one that
    /// returns true has dealt with it. Otherwise a notice shows the address.
    void SetOutsideOpener(std::function<bool(TextIn address)> open) { openOutside_ = open; }

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QAction* MakeAction(const char* name, const QString& caption, const QString& keys,
                        const std::function<void()>& run);
    void MakeTools();
    void FitTools();
    void ShowTitle();
    QWidget* MakeNotice();

    void Open(const std::filesystem::path& file);
    void ShowPage(const HelpTopic& topic);
    void BringForward();
    void StayAboveDialogs();
    bool IsPreviewing() const;
    void BelongTo(QWindow* owner);

    void MakePanes();
    void ConnectPanes();
    void FillPanes();
    void ShareWidth();
    void TurnTo(QWidget* pane);
    HelpTopic Shown() const;
    void Follow(const QUrl& link);
    void GoTo(const HelpEntry& entry);
    void GoToFound(const QString& path, const QString& word);
    void Print();
    void GoHome();
    void ChangeZoom(int step);
    void OpenOutside(const QString& address);

    QMetaObject::Connection ownerHides_;
    std::shared_ptr<CompiledHelp> help_;
    HelpBrowser* browser_;
    QSplitter* columns_;
    QTabWidget* panes_;
    HelpEntryTree* contents_;
    HelpIndexPane* index_;
    HelpSearchPane* search_;
    FindBar* find_;
    std::function<bool(TextIn address)> openOutside_;
    QWidget* notice_ = nullptr;
    QWidget* tools_ = nullptr;
    QLabel* lblOutside_ = nullptr;
    QAction* home_ = nullptr;
    QAction* showContents_ = nullptr;
    QAction* ordinarySize_ = nullptr;
};

}  // namespace halvek
