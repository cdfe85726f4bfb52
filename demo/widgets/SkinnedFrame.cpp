// SPDX-License-Identifier: MIT
#include "widgets/SkinnedFrame.h"

#include "widgets/ColorButton.h"

namespace frontdesk {

SkinnedFrame::SkinnedFrame() {
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
}

void SkinnedFrame::SetColors(const halvek::Utils& library) {
    const QColor skin = ToQColor(library.FormSkinColor());
    const QColor text = ToQColor(library.FormTextColor());
    QPalette colors(skin, skin);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        colors.setColor(role, text);
    }
    setPalette(colors);
}

}  // namespace frontdesk
