// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVBoxLayout>
#include <QWidget>

namespace frontdesk {

class Tour;

/// The context numbers of the client's help, as FrontDesk.hhp gives them.
enum HelpTopicNumber : int {
    kWelcomeTopic = 100,
    kPaymentsTopic = 200,
    kCodesTopic = 300,
    kRemindersTopic = 400,
};

/// One service of the library on a page of the main window.
///
/// A new service gets a class derived from this one and a line in MakePages.
class Page : public QWidget {
  public:
    /// @param title  with "&" before the mnemonic of the page's menu entry
    /// @param summary  what the service is for, in a sentence
    Page(const QString& title, const QString& summary);
    ~Page() override;

    const QString& TitleWithMnemonic() const { return title_; }
    QString Title() const { return QString(title_).remove('&'); }

    /// The context number of the page's topic in the client's help.
    virtual int HelpContext() const { return kWelcomeTopic; }

    /// Shows the current values; called whenever the page comes to the front.
    virtual void Refresh() {}

    /// Plays typical and extreme uses of the service, as a person would.
    virtual void Play(Tour& tour) = 0;

  protected:
    /// The layout below the heading.
    QVBoxLayout& Body() { return *body_; }

  private:
    QString title_;
    QVBoxLayout* body_;
};

}  // namespace frontdesk
