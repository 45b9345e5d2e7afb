// The pipeline status and product dialogs.

#include "qualifiers/pipe_ids.h"
#include "window/templates/resources.h"

namespace kv {

namespace {

using enum ControlKind;

namespace status {

using namespace pipe_status;

constexpr ControlRow kRows[] = {
    {13003, kLabel, "ACTIVE Status", {7, 7, 84, 8}},
    {kAllActive, kCheckBox, "ALL", {7, 18, 28, 10}, kFirstOfGroup},
    {13005, kCheckBox, "Active (ACT)", {15, 31, 76, 10}},
    {13006, kLabel, "INACTIVE Status", {99, 7, 132, 8}},
    {kAllInactive, kCheckBox, "ALL", {99, 18, 28, 10}, kFirstOfGroup},
    {13008, kCheckBox, "Abandoned (ABN)", {107, 31, 124, 10}},
    {13009, kCheckBox, "Abandoned/Comb. (A/C)", {107, 43, 124, 10}},
    {13010, kCheckBox, "Cancelled (CNCL)", {107, 55, 124, 10}},
    {13011, kCheckBox, "Out of Service (OUT)", {107, 67, 124, 10}},
    {13012, kCheckBox, "Out/Combined (O/C)", {107, 79, 124, 10}},
    {13013, kCheckBox, "Relinquished (RELQ)", {107, 91, 124, 10}},
    {13014, kCheckBox, "Relinquished/Removed (R/R)", {107, 103, 124, 10}},
    {13015, kCheckBox, "Removed (REM)", {107, 115, 124, 10}},
    {13016, kCheckBox, "Proposal to remove (PREM)", {107, 127, 124, 10}},
    {13017, kCheckBox, "Removed/Abandoned (R/A)", {107, 139, 124, 10}},
    {13018, kCheckBox, "Removed/Comb (R/C)", {107, 151, 124, 10}},
    {13019, kCheckBox, "Proposed (PROP)", {107, 163, 124, 10}},
    {13020, kCheckBox, "Combined (COMB)", {107, 175, 124, 10}},
    {13021, kCheckBox, "Proposal to abandon (PABN)", {107, 187, 124, 10}},
    {IDOK, kDefaultButton, "OK", {127, 205, 50, 14}, kFirstOfGroup},
    {IDCANCEL, kPushButton, "Cancel", {181, 205, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Pipeline Status", 238, 226, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace status

namespace product {

using namespace pipe_product;

constexpr ControlRow kRows[] = {
    {13022, kLabel, "Combined Service:", {7, 7, 124, 8}},
    {kAllCombined, kCheckBox, "ALL", {7, 18, 28, 10}, kFirstOfGroup},
    {13024, kCheckBox, "Gas and Oil (G/O)", {15, 31, 116, 10}},
    {13025, kCheckBox, "Oil and Water (O/W)", {15, 43, 116, 10}},
    {13026, kLabel, "Oil Related Service:", {139, 7, 132, 8}},
    {kAllOil, kCheckBox, "ALL", {139, 18, 28, 10}, kFirstOfGroup},
    {13028, kCheckBox, "Oil Before Process (BLKO)", {147, 31, 124, 10}},
    {13029, kCheckBox, "Bulk Oil/Lift (BO/L)", {147, 43, 124, 10}},
    {13030, kCheckBox, "Bulk Oil/Service (BO/S)", {147, 55, 124, 10}},
    {13031, kCheckBox, "Condensate (COND)", {147, 67, 124, 10}},
    {13032, kCheckBox, "Oil After Process (OIL)", {147, 79, 124, 10}},
    {13033, kLabel, "Gas Related Service:", {279, 7, 140, 8}},
    {kAllGas, kCheckBox, "ALL", {279, 18, 28, 10}, kFirstOfGroup},
    {13035, kCheckBox, "Bulk Gas/Service (BG/S)", {287, 31, 132, 10}},
    {13036, kCheckBox, "Gas Before Process (BLKG)", {287, 43, 132, 10}},
    {13037, kCheckBox, "Gas Condensate (G/C)", {287, 55, 132, 10}},
    {13038, kCheckBox, "Gas After Process (GAS)", {287, 67, 132, 10}},
    {13039, kCheckBox, "Liquid Propane (LPRO)", {287, 79, 132, 10}},
    {29287, kCheckBox, "Bulk Gas with Trace H2S (BLGH)", {287, 91, 132, 10}},
    {13040, kLabel, "Other Services", {7, 112, 124, 8}},
    {kAllOther, kCheckBox, "ALL", {7, 123, 28, 10}, kFirstOfGroup},
    {13042, kCheckBox, "Acid (ACID)", {15, 136, 116, 10}},
    {13043, kCheckBox, "Pneumatic (AIR)", {15, 148, 116, 10}},
    {13044, kCheckBox, "Chemicals (CHEM)", {15, 160, 116, 10}},
    {13045, kCheckBox, "Diesel (DIES)", {15, 172, 116, 10}},
    {13046, kCheckBox, "Flare Gas (FLG)", {15, 184, 116, 10}},
    {13047, kCheckBox, "Water (H2O)", {15, 196, 116, 10}},
    {13048, kCheckBox, "Gas Injection (INU)", {147, 136, 124, 10}},
    {13049, kCheckBox, "Liquid Gas Enhanc. (LGER)", {147, 148, 124, 10}},
    {13050, kCheckBox, "Gas Lift (LIFT)", {147, 160, 124, 10}},
    {13051, kCheckBox, "Methanol/Glycol (METH)", {147, 172, 124, 10}},
    {13052, kCheckBox, "Nat. Gas Enhanc. (NGER)", {147, 184, 124, 10}},
    {13053, kCheckBox, "Utility Line (SERV)", {147, 196, 124, 10}},
    {13059, kCheckBox, "Supply Gas (SPLY)", {287, 136, 132, 10}},
    {13054, kCheckBox, "Spare (SPRE)", {287, 148, 132, 10}},
    {13055, kCheckBox, "Liquidified Sulfur (SULF)", {287, 160, 132, 10}},
    {13056, kCheckBox, "Test (TEST)", {287, 172, 132, 10}},
    {13057, kCheckBox, "Tow Route (TOW)", {287, 184, 132, 10}},
    {13058, kCheckBox, "Umbilical Hydraulic (UMB)", {287, 196, 132, 10}},
    {IDOK, kDefaultButton, "OK", {315, 215, 50, 14}, kFirstOfGroup},
    {IDCANCEL, kPushButton, "Cancel", {369, 215, 50, 14}},
};

constexpr DialogTemplate kDialog{kTemplate, "Pipeline Product Codes:", 426, 236, kRows};

const RegisterTemplate kRegistered(kDialog);

}  // namespace product

}  // namespace

}  // namespace kv
