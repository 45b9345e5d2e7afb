#include "support/template_texts.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "base/text.h"
#include "window/list_view/list_view_messages.h"
#include "window/templates/resources.h"

namespace test {

namespace {

using kv::ControlKind;

/// Each template's id and caption, and below it its rows: id, kind, text, and how it starts.
constexpr const char* kTexts = R"texts(
180 "Multiple Selections Dialog"
    12039 label "Find:"
    1191 edit ""
    1192 default button "Search..."
    12037 radio "Search..."
    12038 radio "Insert..."
    65535 label "Search records that"
    2101 radio "Contain"
    29148 radio "Start with"
    2100 radio "End with"
    65535 label "Available"
    1193 extended list ""
    1188 button "Add ->"
    1189 button "<- Remove"
    1194 button "Import..."
    1195 button "Export..."
    29300 check box ""
    29299 button "File..."
    65535 label "Selected"
    1043 extended list ""
    1 button "OK"
    1190 button "Clear"
    2 button "Cancel"

182 "Area Block/Extension Selection Dialog"
    65535 label "Find:"
    1191 edit ""
    1192 default button "Search..." disabled
    12037 radio "Search..."
    12038 radio "Insert..."
    65535 label "Search records that"
    2101 radio "Contain"
    29148 radio "Start with"
    2100 radio "End with"
    65535 label "Available Areanames"
    1193 extended list "" sorted
    65535 label "Block/Extension"
    1194 extended list ""
    1188 button "Add ->"
    1189 button "<- Remove"
    12001 button "Select from Map"
    12000 button "Import"
    12004 button "Export"
    12002 button "Neighbor Blocks"
    29300 check box ""
    29299 button "File..."
    1042 list view "" always showing its selection
    1 button "OK"
    1190 button "Clear" disabled
    2 button "Cancel"

250 "Dialog"
    3001 edit ""
    65535 label "To"
    3002 edit ""
    2099 radio "Meters"
    3000 radio "Feet"
    1 default button "OK"
    2 button "Cancel"

1536 "Open"
    1091 label "Look &in:"
    1137 edit "" read-only
    1120 list ""
    1090 label "File &name:"
    1152 edit ""
    1 default button "&Open"
    1089 label "Files of &type:"
    1136 drop list ""
    2 button "Cancel"

2000 "Colors"
    2003 swatch ""
    2004 swatch ""
    2005 swatch ""
    2006 swatch ""
    2007 swatch ""
    2008 swatch ""
    2009 swatch ""
    2010 swatch ""
    2011 swatch ""
    2012 swatch ""
    2013 swatch ""
    2014 swatch ""
    2015 swatch ""
    2016 swatch ""
    2017 swatch ""
    2018 swatch ""

7007 "Coordinate and Projection"
    65535 label "x Coordinate"
    7022 edit "" read-only
    65535 label "Unit"
    7047 drop list "" sorted
    65535 label "y Coordinate"
    7023 edit "" read-only
    65535 label "Format"
    7048 drop list "" sorted
    65535 label "Map Projection"
    7024 edit "" read-only
    65535 label "User Projection"
    29078 editable combo ""
    65535 label "Latitude"
    29027 edit ""
    29028 spin ""
    29029 label "D"
    29030 edit ""
    29031 spin ""
    29032 label "M"
    29033 edit ""
    29034 spin ""
    29035 label "S"
    65535 label "Longitude"
    29036 edit ""
    29037 spin ""
    29038 label "D"
    29039 edit ""
    29040 spin ""
    29041 label "M"
    29042 edit ""
    7025 spin ""
    29043 label "S"
    7039 edit "" hidden
    7040 edit "" hidden
    1 default button "OK"
    2 button "Cancel" hidden

7008 "Check Distance"
    65535 label "Distance"
    7025 edit "" read-only
    65535 label "Unit"
    7034 drop list "" sorted
    65535 label "Offset X"
    7031 edit "" read-only
    65535 label "Offset Y"
    7032 edit "" read-only
    65535 label "Map Projection"
    7045 edit "" read-only
    65535 label "Format"
    7049 drop list "" sorted
    65535 label "User Projection"
    29079 editable combo ""
    65535 group box ""
    65535 label "Start Point  X"
    7027 edit "" read-only
    65535 label "Start Point Y"
    7028 edit "" read-only
    65535 label "Start Point Latitude"
    29044 edit ""
    29045 spin ""
    29046 label "D"
    29047 edit ""
    29048 spin ""
    29049 label "M"
    29050 edit ""
    29051 spin ""
    29052 label "S"
    65535 label "Start Point Longitude"
    29053 edit ""
    29054 spin ""
    29055 label "D"
    29056 edit ""
    29057 spin ""
    29058 label "M"
    29059 edit ""
    7026 spin ""
    29060 label "S"
    65535 group box ""
    65535 label "End Point X"
    7029 edit "" read-only
    65535 label "End Point Y"
    7030 edit "" read-only
    65535 label "End Point Latitude"
    29061 edit ""
    29062 spin ""
    29063 label "D"
    29064 edit ""
    29065 spin ""
    29066 label "M"
    29067 edit ""
    29068 spin ""
    29069 label "S"
    65535 label "End Point Longitude"
    29070 edit ""
    29071 spin ""
    29072 label "D"
    29073 edit ""
    29074 spin ""
    29075 label "M"
    29076 edit ""
    7035 spin ""
    29077 label "S"
    7041 edit "" hidden
    7042 edit "" hidden
    7043 edit "" hidden
    7044 edit "" hidden
    1 default button "OK"
    2 button "Cancel" hidden

12000 "Lessee Match"
    12039 label "Find:"
    1191 edit ""
    1192 default button "Search..."
    12037 radio "Search..."
    12038 radio "Insert..."
    65535 label "Search records that"
    2101 radio "Contain"
    29148 radio "Start with"
    2100 radio "End with"
    65535 label "Available"
    1193 extended list "" sorted
    1188 button "Add ->"
    1189 button "<- Remove"
    1194 button "Import..."
    1195 button "Export..."
    65535 label "Selected"
    1043 extended list "" sorted
    1087 group box "Lessee Options"
    1088 radio "Highest Percentage Lessee"
    1089 radio "Any Percent Lessee"
    1090 radio "OR" disabled
    1091 radio "AND" disabled
    1001 check box "Specify Percentage" disabled
    12034 label "Min" disabled
    1092 editable combo "" disabled
    12035 label "Max" disabled
    1093 editable combo "" disabled
    1 button "OK"
    1190 button "Clear"
    2 button "Cancel"

12001 "Progress"
    1005 label ""
    1003 progress bar ""
    1004 right label " 0 %"
    2 button "Cancel"

12002 "Lease Status"
    65535 label "ACTIVE LEASE:"
    12007 check box "ALL"
    12008 check box "Direct Sus of Oper"
    12016 check box "Extended Term"
    12018 check box "Operations"
    12019 check box "Preliminary"
    12020 check box "Primary DSO"
    12021 check box "Primary Term"
    12022 check box "Suspens of Oper"
    65535 label "INACTIVE LEASE:"
    12012 check box "ALL"
    12009 check box "Consolidated"
    12023 check box "Expired"
    12017 check box "Not Issued"
    12024 check box "Forfeited"
    12025 check box "Rejected"
    12026 check box "Relinquished or Cancelled"
    12027 check box "Terminated"
    65535 label "STATE LEASE ONLY:"
    12013 check box "ALL"
    12010 check box "Active HBP"
    12028 check box "Active 3 Years"
    12029 check box "Active 5 Years"
    65535 label "HELD BY PRODUCTION:"
    12014 check box "ALL"
    12030 check box "Suspens of Prod"
    12031 check box "Unit"
    12032 check box "Producing"
    65535 label "SPECIAL CASE:"
    12015 check box "ALL"
    12033 check box "Never Been Leased"
    12034 check box "No Information"
    12035 check box "Deferred"
    1 default button "OK"
    12011 button "Clear"
    2 button "Cancel"

12003 "Company Match Dialog"
    12039 label "Find:"
    1191 edit ""
    1192 default button "Search..."
    12037 radio "Search..."
    12038 radio "Insert..."
    65535 label "Search records that"
    2101 radio "Contain"
    29148 radio "Start with"
    2100 radio "End with"
    65535 label "Available"
    1193 extended list "" sorted
    1188 button "Add ->"
    1189 button "<- Remove"
    1194 button "Import..."
    1195 button "Export..."
    65535 label "Selected"
    1043 extended list "" sorted
    1086 group box "Company Types"
    1011 check box "Operator"
    1012 check box "Lessee"
    1013 check box "Bid"
    1014 check box "Operating Rights"
    1015 check box "Designated Operator"
    1 button "OK"
    1190 button "Clear"
    2 button "Cancel"

12004 "Color Fill Palette"
    29236 label ""
    29237 label "" hidden
    12036 swatch ""
    12037 swatch ""
    12038 swatch ""
    12039 swatch ""
    12040 swatch ""
    12041 swatch ""
    12042 swatch ""
    12043 swatch ""
    12044 swatch ""
    12045 swatch ""
    12046 swatch ""
    12047 swatch ""
    12048 swatch ""
    12049 swatch ""
    12050 swatch ""
    12051 swatch ""
    12052 swatch ""
    12053 swatch ""
    12054 swatch ""
    12055 swatch ""
    12056 swatch ""
    12057 swatch ""
    12058 swatch ""
    12059 swatch ""
    12060 swatch ""
    12061 swatch ""
    12062 swatch ""
    12063 swatch ""
    12064 swatch ""
    12065 swatch ""
    12066 swatch ""
    12067 swatch ""
    12068 swatch ""
    12069 swatch ""
    12070 swatch ""
    12071 swatch ""
    12072 swatch ""
    12073 swatch ""
    12074 swatch ""
    12075 swatch ""
    29196 center label ""
    29197 center label ""
    29198 center label ""
    29199 center label ""
    29200 center label ""
    29201 center label ""
    29202 center label ""
    29203 center label ""
    29204 center label ""
    29205 center label ""
    29206 center label ""
    29207 center label ""
    29208 center label ""
    29209 center label ""
    29210 center label ""
    29211 center label ""
    29212 center label ""
    29213 center label ""
    29214 center label ""
    29215 center label ""
    29216 center label ""
    29217 center label ""
    29218 center label ""
    29219 center label ""
    29220 center label ""
    29221 center label ""
    29222 center label ""
    29223 center label ""
    29224 center label ""
    29225 center label ""
    29226 center label ""
    29227 center label ""
    29228 center label ""
    29229 center label ""
    29230 center label ""
    29231 center label ""
    29232 center label ""
    29233 center label ""
    29234 center label ""
    29235 center label ""
    29194 button "More..."

12005 "Line Widths"
    2003 swatch ""
    2004 swatch ""
    2005 swatch ""
    2006 swatch ""
    2007 swatch ""
    2008 swatch ""
    2009 swatch ""
    2010 swatch ""
    2011 swatch ""
    2012 swatch ""

12006 "Line Types"
    2003 swatch ""
    2004 swatch ""
    2005 swatch ""
    2006 swatch ""
    2007 swatch ""

12100 "Waiting for the Database"
    1003 label "Running for 0 s"
    2 button "Cancel"

13000 "Pipeline Status"
    13003 label "ACTIVE Status"
    13004 check box "ALL"
    13005 check box "Active (ACT)"
    13006 label "INACTIVE Status"
    13007 check box "ALL"
    13008 check box "Abandoned (ABN)"
    13009 check box "Abandoned/Comb. (A/C)"
    13010 check box "Cancelled (CNCL)"
    13011 check box "Out of Service (OUT)"
    13012 check box "Out/Combined (O/C)"
    13013 check box "Relinquished (RELQ)"
    13014 check box "Relinquished/Removed (R/R)"
    13015 check box "Removed (REM)"
    13016 check box "Proposal to remove (PREM)"
    13017 check box "Removed/Abandoned (R/A)"
    13018 check box "Removed/Comb (R/C)"
    13019 check box "Proposed (PROP)"
    13020 check box "Combined (COMB)"
    13021 check box "Proposal to abandon (PABN)"
    1 default button "OK"
    2 button "Cancel"

13001 "Pipeline Product Codes:"
    13022 label "Combined Service:"
    13023 check box "ALL"
    13024 check box "Gas and Oil (G/O)"
    13025 check box "Oil and Water (O/W)"
    13026 label "Oil Related Service:"
    13027 check box "ALL"
    13028 check box "Oil Before Process (BLKO)"
    13029 check box "Bulk Oil/Lift (BO/L)"
    13030 check box "Bulk Oil/Service (BO/S)"
    13031 check box "Condensate (COND)"
    13032 check box "Oil After Process (OIL)"
    13033 label "Gas Related Service:"
    13034 check box "ALL"
    13035 check box "Bulk Gas/Service (BG/S)"
    13036 check box "Gas Before Process (BLKG)"
    13037 check box "Gas Condensate (G/C)"
    13038 check box "Gas After Process (GAS)"
    13039 check box "Liquid Propane (LPRO)"
    29287 check box "Bulk Gas with Trace H2S (BLGH)"
    13040 label "Other Services"
    13041 check box "ALL"
    13042 check box "Acid (ACID)"
    13043 check box "Pneumatic (AIR)"
    13044 check box "Chemicals (CHEM)"
    13045 check box "Diesel (DIES)"
    13046 check box "Flare Gas (FLG)"
    13047 check box "Water (H2O)"
    13048 check box "Gas Injection (INU)"
    13049 check box "Liquid Gas Enhanc. (LGER)"
    13050 check box "Gas Lift (LIFT)"
    13051 check box "Methanol/Glycol (METH)"
    13052 check box "Nat. Gas Enhanc. (NGER)"
    13053 check box "Utility Line (SERV)"
    13059 check box "Supply Gas (SPLY)"
    13054 check box "Spare (SPRE)"
    13055 check box "Liquidified Sulfur (SULF)"
    13056 check box "Test (TEST)"
    13057 check box "Tow Route (TOW)"
    13058 check box "Umbilical Hydraulic (UMB)"
    1 default button "OK"
    2 button "Cancel"

13002 "DMS Dialog"
    18092 label "Maximum"
    23071 edit ""
    23072 spin ""
    23096 label "Degrees"
    23073 edit ""
    23074 spin ""
    23097 label "Minutes"
    23075 edit ""
    23076 spin ""
    23098 label "Seconds"
    18093 label "Minimum"
    23099 edit ""
    23100 spin ""
    23106 label "Degrees"
    23102 edit ""
    23103 spin ""
    23107 label "Minutes"
    23104 edit ""
    23105 spin ""
    23108 label "Seconds"
    1 default button "OK"
    2 button "Cancel"

13006 "Point Symbols"
    13060 swatch ""
    13061 swatch ""
    13062 swatch ""
    13063 swatch ""
    13064 swatch ""
    13065 swatch ""
    13066 swatch ""
    13067 swatch ""
    13068 swatch ""
    13069 swatch ""
    13070 swatch ""
    13071 swatch ""
    13072 swatch ""
    13073 swatch ""
    13074 swatch ""
    13075 swatch ""
    13076 swatch ""
    13077 swatch ""
    13078 swatch ""

13059 "Number Symbols"
    13079 swatch ""
    13080 swatch ""
    13081 swatch ""
    13082 swatch ""
    13083 swatch ""
    13084 swatch ""
    13085 swatch ""
    13086 swatch ""

13060 ""
    65535 label "Area"
    13070 editable combo "" sorted
    65535 label "Blk/Ext"
    13071 editable combo ""
    65535 label "Layer"
    29083 drop list ""
    29084 radio "Map"
    29085 radio "Report"
    29086 button "Run"

13062 "Projection"
    65535 label "Projection"
    29080 editable combo ""
    1 default button "OK"
    2 button "Cancel"

13063 "Text Property"
    65535 label "Text"
    29089 edit ""
    65535 label "Height (In.)"
    1070 edit ""
    1336 spin ""
    65535 label "Angle"
    1071 edit ""
    1337 spin ""
    65535 label "Weight"
    23301 swatch ""
    65535 label "Color"
    23302 swatch ""
    65535 group box "Text Justification:"
    65535 label "Vertical"
    29149 drop list ""
    65535 label "Horizontal"
    29150 drop list ""
    1 default button "OK"
    2 button "Cancel"

13067 "Polyline Dialog"
    65535 group box "Line Attribute"
    65535 label "Weight:"
    29087 swatch ""
    65535 label "Type:"
    23248 swatch ""
    65535 label "Color:"
    29088 swatch ""
    65535 group box "Vertices Attribute"
    29161 check box "Close Vertices"
    29152 check box "Fill" disabled
    29089 swatch ""
    29190 button "New Vertices..."
    29191 check box "Rubber Band" hidden
    1 default button "OK"
    2 button "Cancel"

14608 "LatLon and XY Converter"
    65535 group box " X/Y to Lat/Lon   Or   Lat/Lon to X/Y"
    65535 group box "Convert From"
    29005 radio "Lat, Lon to X, Y"
    29006 radio "X, Y to Lat, Lon"
    65535 group box "NAD coordinates" hidden
    29081 radio "NAD 27" hidden
    29082 radio "NAD 83" hidden
    65535 label "Projection"
    29007 editable combo ""
    65535 label "Unit"
    29009 drop list "" sorted
    65535 label "x Coordinate"
    29010 edit ""
    65535 label "y Coordinate"
    29011 edit ""
    29014 default button "Convert"
    65535 label "Format"
    29008 drop list "" sorted
    65535 label "Latitude"
    7011 edit ""
    7014 spin ""
    29021 label "D"
    7012 edit ""
    7015 spin ""
    29022 label "M"
    7013 edit ""
    7016 spin ""
    29023 label "S"
    65535 label "Longitude"
    7017 edit ""
    7020 spin ""
    29024 label "D"
    7018 edit ""
    7021 spin ""
    29025 label "M"
    7019 edit ""
    7022 spin ""
    29026 label "S"
    65535 group box "X/Y to X/Y"
    65535 group box "From:"
    65535 label "Projection"
    29312 editable combo ""
    65535 label "Unit"
    29308 drop list "" sorted
    65535 label "X"
    29306 edit ""
    65535 label "Y"
    29307 edit ""
    29314 button "Convert"
    65535 group box "To:"
    65535 label "Projection"
    29313 editable combo ""
    65535 label "Unit"
    29311 drop list "" sorted
    65535 label "X"
    29309 edit "" read-only
    65535 label "Y"
    29310 edit "" read-only
    1 button "OK"

15100 "Quick Offshore Map Builder"
    7020 group box "Map Basics"
    7026 label "Map Name"
    1237 edit ""
    1288 radio "X/Y Bounded"
    2100 radio "Lat/Lon Bounded"
    1369 radio "Feet"
    1370 radio "Meters"
    65535 group box "Width by Height Boundary"
    65535 label "Width"
    1280 editable combo ""
    65535 label "Height"
    1281 editable combo ""
    65535 group box "Percentage Boundary"
    65535 label "Percent"
    1284 editable combo ""
    65535 group box "Origin (Lower Left Corner)"
    65535 label "Latitude Coordinates"
    1500 edit "" read-only
    65535 label "D"
    1501 edit "" read-only
    65535 label "M"
    1502 edit "" read-only
    65535 label "S"
    65535 label "Longitude Coordinates"
    1503 edit "" read-only
    65535 label "D"
    1504 edit "" read-only
    65535 label "M"
    1505 edit "" read-only
    65535 label "S"
    7021 label "X Coordinates"
    1292 edit "" read-only
    7022 label "Y Coordinates"
    1233 edit "" read-only
    65535 group box "Opposite (Upper Right Corner)"
    65535 label "Latitude Coordinates"
    1506 edit "" read-only
    65535 label "D"
    1507 edit "" read-only
    65535 label "M"
    1508 edit "" read-only
    65535 label "S"
    65535 label "Longitude Coordinates"
    1509 edit "" read-only
    65535 label "D"
    1510 edit "" read-only
    65535 label "M"
    1511 edit "" read-only
    65535 label "S"
    7023 label "X Coordinates"
    1236 edit "" read-only
    7024 label "Y Coordinates"
    1293 edit "" read-only
    65535 label "Projection"
    1234 drop list ""
    1235 button "Sizing Options..."
    29259 button "Snap Bounds"
    1 default button "OK"
    2 button "Cancel"

15101 "Custom Map Builder Dialog"
    65535 label "Map Name"
    1238 edit ""
    65535 group box "Map Units"
    1369 radio "Feet"
    1370 radio "Meters"
    65535 group box "Map Bounds Type"
    1288 radio "X/Y Bounded"
    2100 radio "Lat/Lon Bounded"
    65535 group box "Origin Definition"
    1318 radio "Origin as X/Y"
    3003 radio "Origin as Lat/Lon"
    65535 group box "Width and Height"
    1255 radio "Width and Height"
    1256 radio "Upper Right Corner"
    65535 group box "Origin (Lower Left Corner)"
    1311 label "Latitude Coordinates" hidden
    1247 edit "" hidden
    1302 label "D" hidden
    1248 edit "" hidden
    1303 label "M" hidden
    1249 edit "" hidden
    1304 label "S" hidden
    1313 label "Longitude Coordinates" hidden
    1241 edit "" hidden
    1305 label "D" hidden
    1242 edit "" hidden
    1307 label "M" hidden
    1243 edit "" hidden
    1309 label "S" hidden
    1295 label "X Coordinates"
    1292 edit ""
    1296 label "Y Coordinates"
    1233 edit ""
    1319 group box "Opposite (Upper Right Corner)"
    1279 label "Origin +" hidden
    1282 label "Origin +" hidden
    1312 label "Latitude Coordinates" hidden
    1226 edit "" hidden
    1299 label "D" hidden
    1231 edit "" hidden
    1300 label "M" hidden
    1232 edit "" hidden
    1301 label "S" hidden
    1314 label "Longitude Coordinates" hidden
    1244 edit "" hidden
    1306 label "D" hidden
    1245 edit "" hidden
    1308 label "M" hidden
    1246 edit "" hidden
    1310 label "S" hidden
    1298 label "X Coordinates"
    1227 edit ""
    1297 label "Y Coordinates"
    1234 edit ""
    1317 label "Predefined sizes" hidden
    1315 drop list "" hidden
    65535 label "Primary Projection"
    1257 editable combo ""
    65535 label "Secondary Projection" hidden
    1258 editable combo "" hidden
    1235 button "Sizing Options..."
    1 default button "OK"
    2 button "Cancel"

15102 "Map Sizing Dialog"
    65535 group box "Scale"
    1263 check box "" hidden
    29192 label "1 Inch ="
    1259 editable combo ""
    29193 label "Feet"
    65535 group box "Map Settings"
    1266 check box "" hidden
    65535 label "Width"
    1260 edit "" read-only
    65535 label "Inches"
    65535 label "Height"
    1264 edit "" read-only
    65535 label "Inches"
    29147 group box "Orientation"
    1262 radio "Landscape"
    1261 radio "Portrait"
    65535 group box "Plotter"
    65535 label "Paper Width"
    1265 edit "" read-only
    65535 label "Inches"
    65535 group box "Text"
    1370 radio "Stroke Font"
    1371 radio "True Type Font"
    65535 group box "Color Option"
    1372 radio "Color"
    1373 radio "Black && White"
    29138 check box "Display Dark Color in Gray"
    1 default button "OK"
    2 button "Cancel"

15103 "Projection Selection Dialog"
    65535 group box "Projection Type"
    1285 radio "State Standard Lambert"
    2102 radio "State Transverse Mercator"
    2105 radio "Miscellaneous Lambert"
    2100 radio "Misc Transverse Mercator"
    2103 radio "UTM - Various Spheroids"
    2104 radio "Miscellaneous Other"
    2107 radio "State Plane"
    2108 radio "Straight Mercator"
    2101 radio "Miscellaneous Cassini" hidden
    2106 radio "Miscellaneous Bonne" hidden
    1287 list ""
    1 default button "OK"
    2 button "Cancel"

15108 "Export Pick Boundary Dialog"
    7020 group box "Map Basics" hidden
    7026 label "Map Name" hidden
    1237 edit "" hidden
    1288 radio "X/Y Bounded" hidden
    2100 radio "Lat/Lon Bounded" hidden
    1369 radio "Feet" hidden
    1370 radio "Meters" hidden
    65535 group box "Width by Height Boundary"
    65535 label "Width"
    1280 editable combo ""
    65535 label "Height"
    1281 editable combo ""
    65535 group box "Percentage Boundary"
    65535 label "Percent"
    1284 editable combo ""
    65535 group box "Origin (Lower Left Corner)"
    65535 label "Latitude Coordinates"
    1500 edit "" read-only
    65535 label "D"
    1501 edit "" read-only
    65535 label "M"
    1502 edit "" read-only
    65535 label "S"
    65535 label "Longitude Coordinates"
    1503 edit "" read-only
    65535 label "D"
    1504 edit "" read-only
    65535 label "M"
    1505 edit "" read-only
    65535 label "S"
    7021 label "X Coordinates" hidden
    1292 edit "" read-only hidden
    7022 label "Y Coordinates" hidden
    1233 edit "" read-only hidden
    65535 group box "Opposite (Upper Right Corner)"
    65535 label "Latitude Coordinates"
    1506 edit "" read-only
    65535 label "D"
    1507 edit "" read-only
    65535 label "M"
    1508 edit "" read-only
    65535 label "S"
    65535 label "Longitude Coordinates"
    1509 edit "" read-only
    65535 label "D"
    1510 edit "" read-only
    65535 label "M"
    1511 edit "" read-only
    65535 label "S"
    7023 label "X Coordinates" hidden
    1236 edit "" read-only hidden
    7024 label "Y Coordinates" hidden
    1293 edit "" read-only hidden
    65535 label "Projection"
    1234 drop list ""
    1235 button "Sizing Options..." hidden
    29259 button "Snap Bounds" hidden
    1 default button "OK"
    2 button "Cancel"

15109 "Order By"
    29090 group box "Order By"
    29091 radio "Custom"
    29092 radio "Area Name"
    29093 button "&Customize..."
    1 default button "&OK"
    2 button "&Cancel"

15110 "Customize Area Name Order"
    29100 label "Order by Areanames in This Order"
    29094 list ""
    29096 button "&Top"
    29095 button "Move &Up"
    29097 button "Move &Down"
    29098 button "&Bottom"
    29099 button "&Reset..."
    1 default button "&OK"
    2 button "&Cancel"

15111 "Search And Replace"
    65535 label "Layer"
    29101 drop list "" sorted
    65535 label "Search for"
    29102 edit ""
    65535 label "Replace With"
    29103 edit ""
    1 default button "Replace"
    2 button "Cancel"

15112 "Import Configuration"
    65535 group box "Area Type"
    29104 radio "Areaname"
    29105 radio "Areacode"
    29106 radio "MMS code"
    65535 group box "Block/Ext"
    65535 label "Order"
    29107 radio "Block+Ext"
    29108 radio "Ext+Block"
    65535 label "Delimiter"
    29113 radio "Yes"
    29112 radio "No"
    29114 edit "" disabled
    65535 group box "Column Delimiter"
    29109 check box "Use tab as a delimiter"
    29111 label "Use user specified delimiter" disabled
    29110 edit "" disabled
    1 default button "Close"

15113 "Nad27 and Nad83 Converter"
    65535 group box "Convert From"
    29116 radio "Nad27 to Nad83"
    29117 radio "Nad83 to Nad27"
    65535 group box "Nad27"
    65535 label "Format"
    29009 drop list "" sorted
    65535 label "Latitude"
    7023 edit ""
    7026 spin ""
    29027 label "D"
    7024 edit ""
    7027 spin ""
    29028 label "M"
    7025 edit ""
    7028 spin ""
    29029 label "S"
    65535 label "Longitude"
    7029 edit ""
    7032 spin ""
    29030 label "D"
    7030 edit ""
    7033 spin ""
    29031 label "M"
    7031 edit ""
    7034 spin ""
    29032 label "S"
    29115 default button "Convert"
    65535 group box "Nad83"
    65535 label "Format"
    29118 drop list "" sorted
    65535 label "Latitude"
    29119 edit ""
    29120 spin ""
    29121 label "D"
    29122 edit ""
    29123 spin ""
    29124 label "M"
    29125 edit ""
    29126 spin ""
    29127 label "S"
    65535 label "Longitude"
    29128 edit ""
    29129 spin ""
    29130 label "D"
    29131 edit ""
    29132 spin ""
    29133 label "M"
    29134 edit ""
    29135 spin ""
    29136 label "S"
    1 button "OK"
    2 button "Cancel" hidden

15114 "UTM Zone Code"
    65535 label "Zone Code"
    29139 edit ""
    29143 group box "Straight Mercator"
    29142 label "Rectifying Lat-Lon"
    29140 radio "Center of map"
    29141 radio "User-specified"
    65535 label "Lat"
    29144 edit ""
    65535 label "Lon"
    29145 edit ""
    1 default button "OK"
    2 button "Cancel"

15116 "Style"
    29146 list ""

15117 "Folder"
    65535 group box "Load File From"
    23771 radio "User Folder (Saved Files)"
    23772 radio "System Folder (Template Files)"
    1 default button "OK"

15122 "Vertices Builder"
    65535 label "Mode to Edit, Load File, or Save File"
    29238 radio "X-Y "
    29239 radio "Lat / Lon"
    29273 label "Format for Lat / Lon value" hidden
    29271 radio "Deg.Deg" hidden
    29272 radio "DMS" hidden
    65535 group box "Vertice"
    29240 label "X"
    29171 edit ""
    29241 label "Y"
    29172 edit ""
    29242 label "Degree" hidden
    29246 label "Minute" hidden
    29247 label "Second" hidden
    29248 label "Lat" hidden
    29249 label "Lon" hidden
    29243 edit "" hidden
    29244 edit "" hidden
    29245 edit "" hidden
    29250 edit "" hidden
    29251 edit "" hidden
    29252 edit "" hidden
    29173 list ""
    29177 button "Add"
    29178 button "Insert"
    29182 button "Edit"
    29179 button "Delete"
    29180 button "Move Up"
    29181 button "Move Down"
    29170 button "Load File..."
    29174 button "Save File..."
    29176 button "Accept"
    2 button "Exit"
    1 default button "OK" hidden

15124 ""
    65535 label "Current Drive:"
    29189 drop list ""
    29187 label "Current Directory:"
    29183 edit ""
    29185 list view "" always showing its selection
    65535 label "File Name:"
    29188 editable combo ""
    1 default button "OK"
    29186 label "File Type:"
    29184 drop list ""
    2 button "Cancel"

15125 "Color Fill Options"
    65535 label "Color:"
    29249 swatch ""
    1 default button "OK"
    2 button "Cancel"

15126 "Wells Search"
    1001 label "Areaname/Block"
    1042 editable combo "" sorted
    1064 editable combo ""
    29254 label "Well Number"
    29253 edit ""
    29255 label "API Number"
    1045 editable combo ""
    29250 radio "By API Number"
    29251 radio "By Area/Block/Well Number"
    1170 button "List..." hidden
    1171 button "List..." hidden
    1146 check box "" hidden
    1147 check box "" hidden
    1148 check box "" hidden
    1149 check box "" hidden
    1 default button "OK"
    2 button "Cancel"

15127 "Clear Customized Graphics"
    65535 label "Please select the object(s) you would like to clear:"
    65535 group box "Customized Graphics"
    29256 check box "Texts"
    29257 check box "Lines and Polygons"
    29258 check box "Color-filled Lease blocks"
    65535 label "Please be aware that this cannot be undone!"
    1 default button "OK"
    2 button "Cancel"

15128 "Map Bounds"
    65535 label "Snap Bounds"
    29265 editable combo ""
    1 default button "OK"
    2 button "Cancel"

15129 "Area Selection Dialog"
    65535 label "Find:"
    1191 edit ""
    1192 default button "Search..." disabled
    12037 radio "Search..."
    12038 radio "Insert..."
    65535 label "Search records that"
    2101 radio "Contain"
    29148 radio "Start with"
    2100 radio "End with"
    65535 label "Available Areanames"
    1193 extended list "" sorted
    65535 label "Block/Extension" hidden
    1194 extended list "" hidden
    1188 button "Add ->"
    1189 button "<- Remove"
    12001 button "Select from Map" hidden
    12000 button "Import" hidden
    12004 button "Export" hidden
    12002 button "Neighbor Blocks" hidden
    1042 list view "" always showing its selection
    1 button "OK"
    1190 button "Clear" disabled
    2 button "Cancel"

15130 "Lease Match"
    12039 label "Find:"
    1191 edit ""
    1192 default button "Search..."
    12037 radio "Search..."
    12038 radio "Insert..."
    65535 label "Search records that"
    2101 radio "Contain"
    29148 radio "Start with"
    2100 radio "End with"
    65535 label "Lease Dataset"
    29274 check box "Federal"
    29275 check box "Louisiana State"
    29276 check box "Texas State"
    65535 label "Available"
    1193 extended list ""
    1188 button "Add ->"
    1189 button "<- Remove"
    1194 button "Import..."
    1195 button "Export..."
    29300 check box ""
    29299 button "File..."
    65535 label "Selected"
    1043 extended list ""
    1 button "OK"
    1190 button "Clear"
    2 button "Cancel"

15131 "Create Table Dialog"
    65535 group box "Log In Details"
    65535 label "User Name"
    29280 edit ""
    65535 label "Password:"
    29281 edit ""
    65535 label "Database Alias:"
    29282 edit "" read-only
    65535 group box "Database Details"
    65535 label "Dataset:"
    29283 drop list ""
    65535 label "Table Name:"
    29286 drop list ""
    1 default button "OK"
    2 button "Cancel"

15133 "Choose Projection"
    65535 label "Please choose the projection for map report"
    29288 radio "Map Projection"
    29289 radio "Base Projection"
    1 default button "OK"

15134 "Print / Preview Dialog"
    65535 group box "Map"
    29192 label "1 Inch ="
    1259 editable combo ""
    29193 label "Feet"
    65535 label "Width"
    1260 edit "" read-only
    65535 label "Inches"
    65535 label "Height"
    1264 edit "" read-only
    65535 label "Inches"
    1262 radio "Landscape" hidden
    1261 radio "Portrait" hidden
    65535 group box "Printer"
    29305 label ""
    65535 label "Size"
    29298 edit "" read-only
    29194 label "1 Inch ="
    29304 editable combo ""
    29195 label "Feet"
    1263 radio "Landscape"
    1265 radio "Portrait"
    65535 label "Width"
    29293 edit "" read-only
    65535 label "Inches"
    65535 label "Height"
    29294 edit "" read-only
    65535 label "Inches"
    29296 button "Change Printer ..."
    65535 group box "Text"
    1370 radio "Stroke Font"
    1371 radio "True Type Font"
    65535 label "Minimal Font Size"
    29303 edit ""
    65535 group box "Color Option"
    1372 radio "Color"
    1373 radio "Black && White"
    29295 check box "Print in Grayscale"
    1 default button "OK"
    2 button "Cancel"
)texts";

std::string KindInWords(ControlKind kind) {
    static const std::map<ControlKind, const char*> kWords{
        {ControlKind::kLabel, "label"},
        {ControlKind::kRightLabel, "right label"},
        {ControlKind::kCenterLabel, "center label"},
        {ControlKind::kIcon, "icon"},
        {ControlKind::kGroupBox, "group box"},
        {ControlKind::kEdit, "edit"},
        {ControlKind::kPushButton, "button"},
        {ControlKind::kDefaultButton, "default button"},
        {ControlKind::kOwnerDrawButton, "swatch"},
        {ControlKind::kCheckBox, "check box"},
        {ControlKind::kRadio, "radio"},
        {ControlKind::kDropDown, "editable combo"},
        {ControlKind::kDropList, "drop list"},
        {ControlKind::kListBox, "list"},
        {ControlKind::kMultiList, "extended list"},
        {ControlKind::kListView, "list view"},
        {ControlKind::kSpin, "spin"},
        {ControlKind::kProgress, "progress bar"},
    };
    return kWords.at(kind);
}

/// How the control starts, as its window is told.
std::string StateInWords(const kv::ControlRow& row) {
    const DWORD style = kv::StyleOf(row);
    const bool combo = row.kind == ControlKind::kDropDown || row.kind == ControlKind::kDropList;
    const bool list = row.kind == ControlKind::kListBox || row.kind == ControlKind::kMultiList;
    std::string words;
    if ((combo && (style & CBS_SORT)) || (list && (style & LBS_SORT))) words += " sorted";
    if (row.kind == ControlKind::kEdit && (style & ES_READONLY)) words += " read-only";
    if (row.kind == ControlKind::kListView && (style & LVS_SHOWSELALWAYS)) {
        words += " always showing its selection";
    }
    if (style & WS_DISABLED) words += " disabled";
    if (!(style & WS_VISIBLE)) words += " hidden";
    return words;
}

struct Texts {
    std::string caption;
    std::vector<std::string> rows;
};

std::map<int, Texts> ReadTexts() {
    std::map<int, Texts> texts;
    Texts* current = nullptr;
    for (const std::string& line : kv::SplitLines(kTexts)) {
        if (line.empty()) continue;
        if (line.front() == ' ') {
            current->rows.push_back(kv::Trim(line));
            continue;
        }
        const std::size_t quote = line.find('"');
        current = &texts[std::stoi(line)];
        current->caption = line.substr(quote + 1, line.size() - quote - 2);
    }
    return texts;
}

const std::map<int, Texts>& ToldTexts() {
    static const std::map<int, Texts> texts = ReadTexts();
    return texts;
}

}  // namespace

std::vector<int> ToldTemplates() {
    std::vector<int> ids;
    for (const auto& [id, texts] : ToldTexts())
        ids.push_back(id);
    return ids;
}

void ExpectToldTexts(int id) {
    SCOPED_TRACE(id);
    const auto& templates = kv::LibraryResources().templates;
    const auto found = std::ranges::find(templates, id, &kv::DialogTemplate::id);
    ASSERT_NE(found, templates.end());
    ASSERT_TRUE(ToldTexts().contains(id)) << "is not told";
    Texts told = ToldTexts().at(id);
    EXPECT_EQ((*found)->caption, told.caption);
    std::vector<std::string> rows;
    for (const kv::ControlRow& row : (*found)->rows) {
        rows.push_back(std::to_string(row.id) + " " + KindInWords(row.kind) + " \"" + row.text +
                       "\"" + StateInWords(row));
    }
    // The text is in nobody's tab order.
    std::ranges::sort(rows);
    std::ranges::sort(told.rows);
    EXPECT_THAT(rows, testing::ElementsAreArray(told.rows));
}

}  // namespace test
