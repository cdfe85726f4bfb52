// SPDX-License-Identifier: MIT
#include "OpenPractice.h"

#include <QDir>
#include <QFileInfo>

namespace frontdesk {

namespace {

constexpr int kMostFiles = 99;

/// The next name beside a file: practice-2.db for practice.db.
QString NameBeside(const QString& path, int number) {
    const QFileInfo file(path);
    const QString suffix = file.suffix().isEmpty() ? QString() : '.' + file.suffix();
    return QString("%1/%2-%3%4").arg(file.path(), file.completeBaseName()).arg(number).arg(suffix);
}

}  // namespace

std::unique_ptr<Practice> OpenPractice(const QString& path, halvek::Utils& utils) {
    QString fault;
    auto practice = Practice::Open(path, fault);
    if (practice != nullptr) return practice;
    utils.LogError(fault);
    // The first file beside it that can be used: a new one, or that of an earlier start
    std::unique_ptr<Practice> other;
    QString otherPath;
    const auto question = [&](const QString& offer) {
        return utils.ShowMsgBox(fault + "\r\n\r\n" + offer, halvek::mbYesNo, halvek::mbCritical,
                                utils.AppName(), halvek::mbGray, halvek::mb10) == halvek::mbYes;
    };
    for (int number = 2; number <= kMostFiles; ++number) {
        otherPath = NameBeside(path, number);
        if (!QFileInfo::exists(otherPath)) break;
        QString otherFault;
        other = Practice::Open(otherPath, otherFault);
        if (other != nullptr) break;
    }
    const QString name = QFileInfo(otherPath).fileName();
    const QString offer = other != nullptr ? QString("Go on with %1 beside it?").arg(name)
                                           : QString("Start afresh with %1 beside it?").arg(name);
    if (!question(offer + " The file itself stays as it is.")) return nullptr;
    if (other == nullptr) other = Practice::Open(otherPath, fault);
    if (other == nullptr) {
        utils.ShowMsgBox(fault, halvek::mbOkOnly, halvek::mbCritical, utils.AppName(),
                         halvek::mbGray, halvek::mb10);
    }
    return other;
}

}  // namespace frontdesk
