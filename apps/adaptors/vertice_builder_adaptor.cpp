#include "adaptors/adaptor.h"
#include "drawing/vertice_builder.h"
#include "drawing/vertice_builder_ids.h"

namespace adaptors {

namespace {

void RunBuilder(Run& run) {
    CKvGuiVerticeBuilder dialog;
    dialog.SetProjection(run.Get("projection", 3));
    dialog.SetImperialUnit(run.Get("feet", true));
    const auto rows = run.Get("rows", std::vector<std::string>{});
    dialog.SetVertices(rows);
    dialog.SetModifyMode(!rows.empty());
    run.result = dialog.DoModal();
    std::vector<std::string> vertices;
    dialog.GetVertices(vertices);
    run.outcome = {{"vertices", vertices}, {"changed", dialog.GetModifyVertices()}};
}

const Register kRegistered({
    "CKvGuiVerticeBuilder",
    "Drawing tools",
    "Vertices Builder",
    "The vertices of a line or polygon",
    kv::vertice_builder::kTemplate,
    {
        {"rows",
         "list of texts",
         "X and Y of each vertex to begin with, as 100.5, 200.5",
         {"1640416.67, 10000000", "1650000, 10010000"}},
        {"projection", "number", "code of the projection; 3 by itself", nullptr},
        {"feet", "flag", "whether X and Y are in feet, and not in meters; true by itself", nullptr},
    },
    "vertices (X and Y of each, in a row of text), changed (whether the person changed any)",
    RunBuilder,
});

}  // namespace

}  // namespace adaptors
