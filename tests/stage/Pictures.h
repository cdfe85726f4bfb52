// SPDX-License-Identifier: MIT
#pragma once

#include "StageWindow.h"

#include <QImage>
#include <QString>
#include <QStringList>
#include <QTimer>

/// Plays the stories of a file, which need keys alone, without a person: takes their pictures and
/// compares what the host gets. Their notation is that of tests/stories/stories.txt.
class Pictures {
  public:
    Pictures(const QString& stories, const QString& folder);

    /// Returns the exit code: 0 when each story gave what it should.
    int Play();

  private:
    void Begin();
    void Tick();
    void TakeStep(const QString& step);
    void OpenCall(const QString& name);
    void Act(QWidget& front, const QString& step);
    void Save();
    void Judge();

    StageWindow stage_;
    QString folder_;
    QStringList stories_;
    QStringList steps_;  ///< of the story that is played
    QString name_, wanted_, got_;
    bool isActing_ = false;
    bool isOpen_ = false;               ///< a call has not returned yet
    const QWidget* actedOn_ = nullptr;  ///< only to recognise it
    QImage seen_;
    QTimer timer_;
    int calm_ = 0;  ///< ticks without a change
    int late_ = 0;  ///< ticks after the last step
    int pictures_ = 0, allPictures_ = 0, failures_ = 0;
};
