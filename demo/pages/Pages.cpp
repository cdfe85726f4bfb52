// SPDX-License-Identifier: MIT
#include "pages/Pages.h"

#include "pages/CalculatorPage.h"
#include "pages/CharacterFilterPage.h"
#include "pages/CodesPage.h"
#include "pages/ColoursPage.h"
#include "pages/DataBinsPage.h"
#include "pages/DatesPage.h"
#include "pages/DebugPage.h"
#include "pages/DelimitedTextPage.h"
#include "pages/ErrorLogPage.h"
#include "pages/HelpPage.h"
#include "pages/HelpersPage.h"
#include "pages/MessageBoxPage.h"
#include "pages/OpenWindowsPage.h"
#include "pages/PaymentPage.h"
#include "pages/PrintersPage.h"
#include "pages/RemindersPage.h"
#include "pages/RightsPage.h"
#include "pages/SelectionPage.h"
#include "pages/SessionPage.h"
#include "pages/SettingsPage.h"

namespace frontdesk {

std::vector<std::unique_ptr<Page>> MakePages(Desk& desk) {
    std::vector<std::unique_ptr<Page>> pages;
    pages.push_back(std::make_unique<SessionPage>(desk));
    pages.push_back(std::make_unique<CodesPage>(desk));
    pages.push_back(std::make_unique<DelimitedTextPage>(desk));
    pages.push_back(std::make_unique<DataBinsPage>(desk));
    pages.push_back(std::make_unique<ErrorLogPage>(desk));
    pages.push_back(std::make_unique<MessageBoxPage>(desk));
    pages.push_back(std::make_unique<SelectionPage>(desk));
    pages.push_back(std::make_unique<CharacterFilterPage>(desk));
    pages.push_back(std::make_unique<RightsPage>(desk));
    pages.push_back(std::make_unique<PrintersPage>(desk));
    pages.push_back(std::make_unique<SettingsPage>(desk));
    pages.push_back(std::make_unique<OpenWindowsPage>(desk));
    pages.push_back(std::make_unique<RemindersPage>(desk));
    pages.push_back(std::make_unique<DatesPage>(desk));
    pages.push_back(std::make_unique<CalculatorPage>(desk));
    pages.push_back(std::make_unique<HelpersPage>(desk));
    pages.push_back(std::make_unique<ColoursPage>(desk));
    pages.push_back(std::make_unique<DebugPage>(desk));
    pages.push_back(std::make_unique<HelpPage>(desk));
    pages.push_back(std::make_unique<PaymentPage>(desk));
    return pages;
}

}  // namespace frontdesk
