#pragma once

/// Ids of the multiple-selection dialog and its relatives.
namespace kv::list_sel {

inline constexpr int kTemplate = 180;
inline constexpr int kLeaseTemplate = 15130;
inline constexpr int kLesseeTemplate = 12000;
inline constexpr int kCompanyTemplate = 12003;

inline constexpr int kFindLabel = 12039;
inline constexpr int kFind = 1191;
inline constexpr int kSearch = 1192;
inline constexpr int kSearchMode = 12037;
inline constexpr int kInsertMode = 12038;
inline constexpr int kContain = 2101;
inline constexpr int kStartWith = 29148;
inline constexpr int kEndWith = 2100;
inline constexpr int kAvailable = 1193;
inline constexpr int kSelected = 1043;
inline constexpr int kAdd = 1188;
inline constexpr int kRemove = 1189;
inline constexpr int kImport = 1194;
inline constexpr int kExport = 1195;
inline constexpr int kClear = 1190;
inline constexpr int kListFileCheck = 29300;
inline constexpr int kListFileButton = 29299;

// Lease dataset.
inline constexpr int kFederal = 29274;
inline constexpr int kLouisiana = 29275;
inline constexpr int kTexas = 29276;

// Lessee options.
inline constexpr int kLesseeOptions = 1087;
inline constexpr int kHighest = 1088;
inline constexpr int kAny = 1089;
inline constexpr int kOr = 1090;
inline constexpr int kAnd = 1091;
inline constexpr int kSpecifyPercent = 1001;
inline constexpr int kMinLabel = 12034;
inline constexpr int kMaxLabel = 12035;
inline constexpr int kMin = 1092;
inline constexpr int kMax = 1093;

// Company types.
inline constexpr int kCompanyTypes = 1086;
inline constexpr int kOperator = 1011;
inline constexpr int kLessee = 1012;
inline constexpr int kBid = 1013;
inline constexpr int kOperatingRights = 1014;
inline constexpr int kDesignatedOperator = 1015;

}  // namespace kv::list_sel
