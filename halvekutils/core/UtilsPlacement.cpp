#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/core/UtilsPrivate.h>
#include <halvekutils/platform/Guard.h>

namespace halvek {

namespace {

constexpr float kNotGiven = -1;

float PositionOf(const std::optional<std::int32_t>& twips) {
    return twips ? static_cast<float>(*twips) : kNotGiven;
}

}  // namespace

void Utils::CalculateCellCoordinates(const std::shared_ptr<PopupTarget>& Target, float& posLeft,
                                     float& posTopUp, float& posTopDown, PopupEdge Edge) {
    PopupAnchor anchor;
    Guarded(OnFault::Beep, u"Error in Utils.CalculateCellCoordinates ", LogOf(*this), [&] {
        if (Target == nullptr) throw RuntimeError(Fault::ObjectNotSet, u"button or cell");
        anchor = AnchorBeside(Edge, *Target);
    });
    posLeft = PositionOf(anchor.left);
    posTopUp = PositionOf(anchor.topUp);
    posTopDown = PositionOf(anchor.topDown);
}

}  // namespace halvek
