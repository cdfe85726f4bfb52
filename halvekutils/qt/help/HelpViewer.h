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
class QTreeWidget;
class QTreeWidgetItem;

namespace halvek {

class FindBar;
class HelpBrowser;

/// The window that shows compiled help: its contents at the left, a page at the right.
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
    void BelongTo(QWindow* owner);

    void FillContents();
    void MarkInContents();
    void Follow(const QUrl& link);
    void GoTo(const QTreeWidgetItem* item);
    void GoHome();
    void ChangeZoom(int step);
    void NoteOutside(const QUrl& link);

    QMetaObject::Connection ownerHides_;
    std::shared_ptr<CompiledHelp> help_;
    HelpBrowser* browser_;
    QTreeWidget* trvContents_;
    FindBar* find_;
    QWidget* notice_ = nullptr;
    QWidget* tools_ = nullptr;
    QLabel* lblOutside_ = nullptr;
    QAction* home_ = nullptr;
    QAction* showContents_ = nullptr;
    QAction* ordinarySize_ = nullptr;
};

}  // namespace halvek
