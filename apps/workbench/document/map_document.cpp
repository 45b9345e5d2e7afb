#include "workbench/document/map_document.h"

namespace workbench {

bool MapDocument::operator==(const MapDocument& other) const {
    if (dataset != other.dataset || map != other.map) return false;
    if (drawings == other.drawings) return true;
    static const Drawings kNone;
    return (drawings ? *drawings : kNone) == (other.drawings ? *other.drawings : kNone);
}

}  // namespace workbench
