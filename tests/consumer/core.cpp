// SPDX-License-Identifier: MIT
#include <halvekutils/core/Utils.h>
#include <halvekutils/scripted/ScriptedPlatform.h>

using namespace halvek;

int main() {
    ScriptedPlatform desktop;
    desktop.OnMessageBox([](MessageBox& box) { box.Press(mbNo); });
    const auto utils = Utils::Create();
    utils->InitUtils(u"/dev/null/none", u"Consumer", u"test", false, u"1");
    utils->BuildCodesCollection(u"Insurance\u00E6INS\u00E61\u00E61\u00E6List\u00E6Name");
    const bool built = utils->GetCodesCollection()->Item(u"ins")->CodeHasLookup();
    return built && utils->ShowMsgBox(u"?", mbYesNo, mbQuestion, u"") == mbNo ? 0 : 1;
}
