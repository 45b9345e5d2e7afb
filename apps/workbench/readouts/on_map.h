#pragma once

#include "window/messages.h"
#include "workbench/readouts/map_positions.h"

namespace workbench {

/// A readout of the library's on this map: what the user picks in it is computed about the map's
/// own rectifying point, whatever another tool has set meanwhile.
template <typename Readout>
class OnMap : public Readout {
public:
    template <typename... Arguments>
    explicit OnMap(const MapPositions& positions, Arguments... arguments)
        : Readout(arguments...), positions_(positions) {}

    BOOL OnCmdMsg(UINT id, int code, void* extra, void* info) override {
        if (code == CBN_SELCHANGE) positions_.SetRectifyingPoint();
        return Readout::OnCmdMsg(id, code, extra, info);
    }

private:
    const MapPositions& positions_;
};

}  // namespace workbench
