#include "workbench/printing/paper_look.h"

namespace workbench {

namespace {

constexpr QColor MapLook::*kFills[] = {&MapLook::state, &MapLook::bay, &MapLook::shelf,
                                       &MapLook::deep};
constexpr QColor MapLook::*kLines[] = {&MapLook::edgeText,
                                       &MapLook::blockLine,
                                       &MapLook::areaLine,
                                       &MapLook::areaText,
                                       &MapLook::blockText,
                                       &MapLook::spotText,
                                       &MapLook::oil,
                                       &MapLook::gas,
                                       &MapLook::otherPipeline,
                                       &MapLook::wellCompleted,
                                       &MapLook::wellDrilling,
                                       &MapLook::wellSuspended,
                                       &MapLook::wellSidetracked,
                                       &MapLook::wellAbandoned,
                                       &MapLook::platform,
                                       &MapLook::removedPlatform,
                                       &MapLook::panelLine,
                                       &MapLook::panelText};

QColor OnWhite(const QColor& color) {
    const auto mixed = [&](float part) {
        return static_cast<float>(1 - color.alphaF() * (1 - part));
    };
    return QColor::fromRgbF(mixed(color.redF()), mixed(color.greenF()), mixed(color.blueF()));
}

QColor Gray(const QColor& color) {
    const int gray = qGray(color.rgb());
    return {gray, gray, gray};
}

}  // namespace

QColor LineOnPaper(const QColor& color, InkMode mode) {
    if (mode == InkMode::kBlackAndWhite) return Qt::black;
    return mode == InkMode::kGray ? Gray(color) : color;
}

QColor FillOnPaper(const QColor& color, InkMode mode) {
    if (mode == InkMode::kBlackAndWhite) return Qt::white;
    return mode == InkMode::kGray ? Gray(color) : color;
}

MapLook LookOnPaper(InkMode mode) {
    MapLook look = LightLook();
    look.ground = look.halo = look.panel = Qt::white;
    const bool inBlack = mode == InkMode::kBlackAndWhite;
    for (const auto color : kFills)
        look.*color = inBlack ? QColor(Qt::white) : OnWhite(look.*color);
    for (const auto color : kLines)
        look.*color = inBlack ? QColor(Qt::black) : OnWhite(look.*color);
    if (mode != InkMode::kGray) return look;
    for (const auto color : kFills)
        look.*color = Gray(look.*color);
    for (const auto color : kLines)
        look.*color = Gray(look.*color);
    return look;
}

}  // namespace workbench
