#pragma once

namespace kv::coordtools {

/// Ids of one box of a group, its spin button and its label.
struct BoxIds {
    int edit;
    int spin;
    int label;
};

struct AngleIds {
    BoxIds degrees;
    BoxIds minutes;
    BoxIds seconds;
};

}  // namespace kv::coordtools
