#pragma once

#include <string>
#include <vector>

#include "drawing/vertice_builder.h"
#include "drawing/vertice_builder_ids.h"
#include "frame/kvcom/util_lldrv.h"
#include "frame/module.h"
#include "support/dialog_fixture.h"

namespace test {

inline constexpr int kUtm15 = 115;

/// A builder in meters on a projection that has an answer for all of the Gulf.
class VerticeBuilderTest : public DialogTest {
protected:
    VerticeBuilderTest() {
        InitControlDll();
        dialog.SetProjection(kUtm15);
        dialog.SetImperialUnit(false);
    }
    void Begin(const std::vector<std::string>& rows) {
        dialog.SetVertices(rows);
        dialog.SetModifyMode(true);
    }
    std::vector<std::string> Vertices() const {
        std::vector<std::string> rows;
        dialog.GetVertices(rows);
        return rows;
    }
    /// X and Y of a position, as a row.
    static std::string XyOf(double lat, double lon) {
        double x = 0;
        double y = 0;
        CKvUtilLLdrv::LLdrv(lat, lon, &x, &y, kUtm15, 1, 1, 100.0F, 0.0F, 0.0F);
        char row[100];
        std::snprintf(row, sizeof row, "%.6f , %.6f", x, y);
        return row;
    }

    CKvGuiVerticeBuilder dialog;
};

}  // namespace test
