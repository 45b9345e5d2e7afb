#include "services/kvcom/projection_zones.h"

#include <algorithm>
#include <charconv>

#include "frame/kvcom/projection_code.h"

namespace kv::coord {
namespace {

constexpr int kUtmZones = 60;

constexpr const char* kStateLambert = "state_lambert";
constexpr const char* kStateTransverse = "state_trans_mercator";
constexpr const char* kMiscLambert = "misc_lambert";
constexpr const char* kMiscTransverse = "misc_trans_mercator";
constexpr const char* kSpheroid = "utm_spheroids";
constexpr const char* kMiscBonne = "misc_boone";
constexpr const char* kMiscCassini = "misc_cassini";
constexpr const char* kMiscOther = "misc_other";

constexpr Zone kZones[] = {
    {1, "Texas South Central", kStateLambert, 4204,
     "+proj=lcc +ellps=clrk66 +lon_0=-99 +lat_1=30.2833333333333 +lat_2=28.3833333333333 "
     "+lat_0=27.8333333333333 +x_0=609601.2192024384"},
    {2, "Texas South", kStateLambert, 4205,
     "+proj=lcc +ellps=clrk66 +lon_0=-98.5 +lat_1=27.8333333333333 +lat_2=26.1666666666667 "
     "+lat_0=25.6666666666667 +x_0=609601.2192024384"},
    {3, "Louisiana South", kStateLambert, 1702,
     "+proj=lcc +ellps=clrk66 +lon_0=-91.3333333333333 +lat_1=30.7 +lat_2=29.3 "
     "+lat_0=28.6666666666667 +x_0=609601.2192024384"},
    {4, "Arkansas North", kStateLambert, 301,
     "+proj=lcc +ellps=clrk66 +lon_0=-92 +lat_1=36.2333333333333 +lat_2=34.9333333333333 "
     "+lat_0=34.3333333333333 +x_0=609601.2192024384"},
    {5, "Arkansas South", kStateLambert, 302,
     "+proj=lcc +ellps=clrk66 +lon_0=-92 +lat_1=34.7666666666667 +lat_2=33.3 "
     "+lat_0=32.6666666666667 +x_0=609601.2192024384"},
    {6, "California I", kStateLambert, 401,
     "+proj=lcc +ellps=clrk66 +lon_0=-122 +lat_1=41.6666666666667 +lat_2=40 "
     "+lat_0=39.3333333333333 +x_0=609601.2192024384"},
    {7, "California II", kStateLambert, 402,
     "+proj=lcc +ellps=clrk66 +lon_0=-122 +lat_1=39.8333333333333 +lat_2=38.3333333333333 "
     "+lat_0=37.6666666666667 +x_0=609601.2192024384"},
    {8, "California III", kStateLambert, 403,
     "+proj=lcc +ellps=clrk66 +lon_0=-120.5 +lat_1=38.4333333333333 +lat_2=37.0666666666667 "
     "+lat_0=36.5 +x_0=609601.2192024384"},
    {9, "California IV", kStateLambert, 404,
     "+proj=lcc +ellps=clrk66 +lon_0=-119 +lat_1=37.25 +lat_2=36 +lat_0=35.3333333333333 "
     "+x_0=609601.2192024384"},
    {10, "California V", kStateLambert, 405,
     "+proj=lcc +ellps=clrk66 +lon_0=-118 +lat_1=35.4666666666667 +lat_2=34.0333333333333 "
     "+lat_0=33.5 +x_0=609601.2192024384"},
    {11, "California VI", kStateLambert, 406,
     "+proj=lcc +ellps=clrk66 +lon_0=-116.25 +lat_1=33.8833333333333 +lat_2=32.7833333333333 "
     "+lat_0=32.1666666666667 +x_0=609601.2192024384"},
    {12, "California VII", kStateLambert, 407,
     "+proj=lcc +ellps=clrk66 +lon_0=-118.3333333333333 +lat_1=34.4166666666667 "
     "+lat_2=33.8666666666667 +lat_0=34.1333333333333 +x_0=1276106.450596901 "
     "+y_0=1268253.006858014"},
    {13, "Colorado North", kStateLambert, 501,
     "+proj=lcc +ellps=clrk66 +lon_0=-105.5 +lat_1=40.7833333333333 +lat_2=39.7166666666667 "
     "+lat_0=39.3333333333333 +x_0=609601.2192024384"},
    {14, "Colorado Central", kStateLambert, 502,
     "+proj=lcc +ellps=clrk66 +lon_0=-105.5 +lat_1=39.75 +lat_2=38.45 +lat_0=37.8333333333333 "
     "+x_0=609601.2192024384"},
    {15, "Colorado South", kStateLambert, 503,
     "+proj=lcc +ellps=clrk66 +lon_0=-105.5 +lat_1=38.4333333333333 +lat_2=37.2333333333333 "
     "+lat_0=36.6666666666667 +x_0=609601.2192024384"},
    {16, "Connecticut", kStateLambert, 600,
     "+proj=lcc +ellps=clrk66 +lon_0=-72.75 +lat_1=41.8666666666667 +lat_2=41.2 "
     "+lat_0=40.8333333333333 +x_0=182880.3657607315"},
    {17, "Florida North", kStateLambert, 903,
     "+proj=lcc +ellps=clrk66 +lon_0=-84.5 +lat_1=30.75 +lat_2=29.5833333333333 +lat_0=29 "
     "+x_0=609601.2192024384"},
    {18, "Iowa North", kStateLambert, 1401,
     "+proj=lcc +ellps=clrk66 +lon_0=-93.5 +lat_1=43.2666666666667 +lat_2=42.0666666666667 "
     "+lat_0=41.5 +x_0=609601.2192024384"},
    {19, "Iowa South", kStateLambert, 1402,
     "+proj=lcc +ellps=clrk66 +lon_0=-93.5 +lat_1=41.7833333333333 +lat_2=40.6166666666667 "
     "+lat_0=40 +x_0=609601.2192024384"},
    {20, "Kansas North", kStateLambert, 1501,
     "+proj=lcc +ellps=clrk66 +lon_0=-98 +lat_1=39.7833333333333 +lat_2=38.7166666666667 "
     "+lat_0=38.3333333333333 +x_0=609601.2192024384"},
    {21, "Kansas South", kStateLambert, 1502,
     "+proj=lcc +ellps=clrk66 +lon_0=-98.5 +lat_1=38.5666666666667 +lat_2=37.2666666666667 "
     "+lat_0=36.6666666666667 +x_0=609601.2192024384"},
    {22, "Kentucky North", kStateLambert, 1601,
     "+proj=lcc +ellps=clrk66 +lon_0=-84.25 +lat_1=38.9666666666667 +lat_2=37.9666666666667 "
     "+lat_0=37.5 +x_0=609601.2192024384"},
    {23, "Kentucky South", kStateLambert, 1602,
     "+proj=lcc +ellps=clrk66 +lon_0=-85.75 +lat_1=37.9333333333333 +lat_2=36.7333333333333 "
     "+lat_0=36.3333333333333 +x_0=609601.2192024384"},
    {24, "Louisiana North", kStateLambert, 1701,
     "+proj=lcc +ellps=clrk66 +lon_0=-92.5 +lat_1=32.6666666666667 +lat_2=31.1666666666667 "
     "+lat_0=30.6666666666667 +x_0=609601.2192024384"},
    {25, "Louisiana Offshore", kStateLambert, 1703,
     "+proj=lcc +ellps=clrk66 +lon_0=-91.3333333333333 +lat_1=27.8333333333333 "
     "+lat_2=26.1666666666667 +lat_0=25.6666666666667 +x_0=609601.2192024384"},
    {26, "Maryland", kStateLambert, 1900,
     "+proj=lcc +ellps=clrk66 +lon_0=-77 +lat_1=39.45 +lat_2=38.3 +lat_0=37.8333333333333 "
     "+x_0=243840.4876809754"},
    {27, "Massachusetts Mainland", kStateLambert, 2001,
     "+proj=lcc +ellps=clrk66 +lon_0=-71.5 +lat_1=42.6833333333333 +lat_2=41.7166666666667 "
     "+lat_0=41 +x_0=182880.3657607315"},
    {28, "Massachusetts Island", kStateLambert, 2002,
     "+proj=lcc +ellps=clrk66 +lon_0=-70.5 +lat_1=41.4833333333333 +lat_2=41.2833333333333 "
     "+lat_0=41 +x_0=60960.12192024384"},
    {29, "Michigan North", kStateLambert, 2111,
     "+proj=lcc +a=6378450.047 +es=.006768657997291094 +lon_0=-87 +lat_1=47.0833333333333 "
     "+lat_2=45.4833333333333 +lat_0=44.7833333333333 +x_0=609601.2192024384"},
    {30, "Michigan Central", kStateLambert, 2112,
     "+proj=lcc +a=6378450.047 +es=.006768657997291094 +lon_0=-84.3333333333333 +lat_1=45.7 "
     "+lat_2=44.1833333333333 +lat_0=43.3166666666667 +x_0=609601.2192024384"},
    {31, "Michigan South", kStateLambert, 2113,
     "+proj=lcc +a=6378450.047 +es=.006768657997291094 +lon_0=-84.3333333333333 "
     "+lat_1=43.6666666666667 +lat_2=42.1 +lat_0=41.5 +x_0=609601.2192024384"},
    {32, "Minnesota North", kStateLambert, 2201,
     "+proj=lcc +ellps=clrk66 +lon_0=-93.1 +lat_1=48.6333333333333 +lat_2=47.0333333333333 "
     "+lat_0=46.5 +x_0=609601.2192024384"},
    {33, "Minnesota Central", kStateLambert, 2202,
     "+proj=lcc +ellps=clrk66 +lon_0=-94.25 +lat_1=47.05 +lat_2=45.6166666666667 +lat_0=45 "
     "+x_0=609601.2192024384"},
    {34, "Minnesota South", kStateLambert, 2203,
     "+proj=lcc +ellps=clrk66 +lon_0=-94 +lat_1=45.2166666666667 +lat_2=43.7833333333333 +lat_0=43 "
     "+x_0=609601.2192024384"},
    {35, "Montana North", kStateLambert, 2501,
     "+proj=lcc +ellps=clrk66 +lon_0=-109.5 +lat_1=48.7166666666667 +lat_2=47.85 +lat_0=47 "
     "+x_0=609601.2192024384"},
    {36, "Montana Central", kStateLambert, 2502,
     "+proj=lcc +ellps=clrk66 +lon_0=-109.5 +lat_1=47.8833333333333 +lat_2=46.45 "
     "+lat_0=45.8333333333333 +x_0=609601.2192024384"},
    {37, "Montana South", kStateLambert, 2503,
     "+proj=lcc +ellps=clrk66 +lon_0=-109.5 +lat_1=46.4 +lat_2=44.8666666666667 +lat_0=44 "
     "+x_0=609601.2192024384"},
    {38, "Nebraska North", kStateLambert, 2601,
     "+proj=lcc +ellps=clrk66 +lon_0=-100 +lat_1=42.8166666666667 +lat_2=41.85 "
     "+lat_0=41.3333333333333 +x_0=609601.2192024384"},
    {39, "Nebraska South", kStateLambert, 2602,
     "+proj=lcc +ellps=clrk66 +lon_0=-99.5 +lat_1=41.7166666666667 +lat_2=40.2833333333333 "
     "+lat_0=39.6666666666667 +x_0=609601.2192024384"},
    {40, "New York Long Island", kStateLambert, 3104,
     "+proj=lcc +ellps=clrk66 +lon_0=-74 +lat_1=41.0333333333333 +lat_2=40.6666666666667 "
     "+lat_0=40.5 +x_0=609601.2192024384 +y_0=30480.06096012192"},
    {41, "North Carolina", kStateLambert, 3200,
     "+proj=lcc +ellps=clrk66 +lon_0=-79 +lat_1=36.1666666666667 +lat_2=34.3333333333333 "
     "+lat_0=33.75 +x_0=609601.2192024384"},
    {42, "North Dakota North", kStateLambert, 3301,
     "+proj=lcc +ellps=clrk66 +lon_0=-100.5 +lat_1=48.7333333333333 +lat_2=47.4333333333333 "
     "+lat_0=47 +x_0=609601.2192024384"},
    {43, "North Dakota South", kStateLambert, 3302,
     "+proj=lcc +ellps=clrk66 +lon_0=-100.5 +lat_1=47.4833333333333 +lat_2=46.1833333333333 "
     "+lat_0=45.6666666666667 +x_0=609601.2192024384"},
    {44, "Ohio North", kStateLambert, 3401,
     "+proj=lcc +ellps=clrk66 +lon_0=-82.5 +lat_1=41.7 +lat_2=40.4333333333333 "
     "+lat_0=39.6666666666667 +x_0=609601.2192024384"},
    {45, "Ohio South", kStateLambert, 3402,
     "+proj=lcc +ellps=clrk66 +lon_0=-82.5 +lat_1=40.0333333333333 +lat_2=38.7333333333333 "
     "+lat_0=38 +x_0=609601.2192024384"},
    {46, "Oklahoma North", kStateLambert, 3501,
     "+proj=lcc +ellps=clrk66 +lon_0=-98 +lat_1=36.7666666666667 +lat_2=35.5666666666667 +lat_0=35 "
     "+x_0=609601.2192024384"},
    {47, "Oklahoma South", kStateLambert, 3502,
     "+proj=lcc +ellps=clrk66 +lon_0=-98 +lat_1=35.2333333333333 +lat_2=33.9333333333333 "
     "+lat_0=33.3333333333333 +x_0=609601.2192024384"},
    {48, "Oregon North", kStateLambert, 3601,
     "+proj=lcc +ellps=clrk66 +lon_0=-120.5 +lat_1=46 +lat_2=44.3333333333333 "
     "+lat_0=43.6666666666667 +x_0=609601.2192024384"},
    {49, "Oregon South", kStateLambert, 3602,
     "+proj=lcc +ellps=clrk66 +lon_0=-120.5 +lat_1=44 +lat_2=42.3333333333333 "
     "+lat_0=41.6666666666667 +x_0=609601.2192024384"},
    {50, "Pennsylvania North", kStateLambert, 3701,
     "+proj=lcc +ellps=clrk66 +lon_0=-77.75 +lat_1=41.95 +lat_2=40.8833333333333 "
     "+lat_0=40.1666666666667 +x_0=609601.2192024384"},
    {51, "Pennsylvania South", kStateLambert, 3702,
     "+proj=lcc +ellps=clrk66 +lon_0=-77.75 +lat_1=40.9666666666667 +lat_2=39.9333333333333 "
     "+lat_0=39.3333333333333 +x_0=609601.2192024384"},
    {52, "South Carolina North", kStateLambert, 3901,
     "+proj=lcc +ellps=clrk66 +lon_0=-81 +lat_1=34.9666666666667 +lat_2=33.7666666666667 +lat_0=33 "
     "+x_0=609601.2192024384"},
    {53, "South Carolina South", kStateLambert, 3902,
     "+proj=lcc +ellps=clrk66 +lon_0=-81 +lat_1=33.6666666666667 +lat_2=32.3333333333333 "
     "+lat_0=31.8333333333333 +x_0=609601.2192024384"},
    {54, "South Dakota North", kStateLambert, 4001,
     "+proj=lcc +ellps=clrk66 +lon_0=-100 +lat_1=45.6833333333333 +lat_2=44.4166666666667 "
     "+lat_0=43.8333333333333 +x_0=609601.2192024384"},
    {55, "South Dakota South", kStateLambert, 4002,
     "+proj=lcc +ellps=clrk66 +lon_0=-100.3333333333333 +lat_1=44.4 +lat_2=42.8333333333333 "
     "+lat_0=42.3333333333333 +x_0=609601.2192024384"},
    {56, "Tennessee", kStateLambert, 4100,
     "+proj=lcc +ellps=clrk66 +lon_0=-86 +lat_1=36.4166666666667 +lat_2=35.25 "
     "+lat_0=34.6666666666667 +x_0=609601.2192024384 +y_0=30480.06096012192"},
    {57, "Texas North", kStateLambert, 4201,
     "+proj=lcc +ellps=clrk66 +lon_0=-101.5 +lat_1=36.1833333333333 +lat_2=34.65 +lat_0=34 "
     "+x_0=609601.2192024384"},
    {58, "Texas North Central", kStateLambert, 4202,
     "+proj=lcc +ellps=clrk66 +lon_0=-97.5 +lat_1=33.9666666666667 +lat_2=32.1333333333333 "
     "+lat_0=31.6666666666667 +x_0=609601.2192024384"},
    {59, "Texas Central", kStateLambert, 4203,
     "+proj=lcc +ellps=clrk66 +lon_0=-100.3333333333333 +lat_1=31.8833333333333 "
     "+lat_2=30.1166666666667 +lat_0=29.6666666666667 +x_0=609601.2192024384"},
    {60, "Utah North", kStateLambert, 4301,
     "+proj=lcc +ellps=clrk66 +lon_0=-111.5 +lat_1=41.7833333333333 +lat_2=40.7166666666667 "
     "+lat_0=40.3333333333333 +x_0=609601.2192024384"},
    {61, "Utah Central", kStateLambert, 4302,
     "+proj=lcc +ellps=clrk66 +lon_0=-111.5 +lat_1=40.65 +lat_2=39.0166666666667 "
     "+lat_0=38.3333333333333 +x_0=609601.2192024384"},
    {62, "Utah South", kStateLambert, 4303,
     "+proj=lcc +ellps=clrk66 +lon_0=-111.5 +lat_1=38.35 +lat_2=37.2166666666667 "
     "+lat_0=36.6666666666667 +x_0=609601.2192024384"},
    {63, "Virginia North", kStateLambert, 4501,
     "+proj=lcc +ellps=clrk66 +lon_0=-78.5 +lat_1=39.2 +lat_2=38.0333333333333 "
     "+lat_0=37.6666666666667 +x_0=609601.2192024384"},
    {64, "Virginia South", kStateLambert, 4502,
     "+proj=lcc +ellps=clrk66 +lon_0=-78.5 +lat_1=37.9666666666667 +lat_2=36.7666666666667 "
     "+lat_0=36.3333333333333 +x_0=609601.2192024384"},
    {65, "Washington North", kStateLambert, 4601,
     "+proj=lcc +ellps=clrk66 +lon_0=-120.8333333333333 +lat_1=48.7333333333333 +lat_2=47.5 "
     "+lat_0=47 +x_0=609601.2192024384"},
    {66, "Washington South", kStateLambert, 4602,
     "+proj=lcc +ellps=clrk66 +lon_0=-120.5 +lat_1=47.3333333333333 +lat_2=45.8333333333333 "
     "+lat_0=45.3333333333333 +x_0=609601.2192024384"},
    {67, "West Virginia North", kStateLambert, 4701,
     "+proj=lcc +ellps=clrk66 +lon_0=-79.5 +lat_1=40.25 +lat_2=39 +lat_0=38.5 "
     "+x_0=609601.2192024384"},
    {68, "West Virginia South", kStateLambert, 4702,
     "+proj=lcc +ellps=clrk66 +lon_0=-81 +lat_1=38.8833333333333 +lat_2=37.4833333333333 +lat_0=37 "
     "+x_0=609601.2192024384"},
    {69, "Wisconsin North", kStateLambert, 4801,
     "+proj=lcc +ellps=clrk66 +lon_0=-90 +lat_1=46.7666666666667 +lat_2=45.5666666666667 "
     "+lat_0=45.1666666666667 +x_0=609601.2192024384"},
    {70, "Wisconsin Central", kStateLambert, 4802,
     "+proj=lcc +ellps=clrk66 +lon_0=-90 +lat_1=45.5 +lat_2=44.25 +lat_0=43.8333333333333 "
     "+x_0=609601.2192024384"},
    {71, "Wisconsin South", kStateLambert, 4803,
     "+proj=lcc +ellps=clrk66 +lon_0=-90 +lat_1=44.0666666666667 +lat_2=42.7333333333333 +lat_0=42 "
     "+x_0=609601.2192024384"},
    {72, "Alaska 10", kStateLambert, 5010,
     "+proj=lcc +ellps=clrk66 +lon_0=-176 +lat_1=53.8333333333333 +lat_2=51.8333333333333 "
     "+lat_0=51 +x_0=914401.8288036576"},
    {73, "Puerto Rico and Virgin Islands", kStateLambert, 5201,
     "+proj=lcc +ellps=clrk66 +lon_0=-66.4333333333333 +lat_1=18.4333333333333 "
     "+lat_2=18.0333333333333 +lat_0=17.8333333333333 +x_0=152400.3048006096"},
    {74, "Virgin Islands St. Croix", kStateLambert, 5202,
     "+proj=lcc +ellps=clrk66 +lon_0=-66.4333333333333 +lat_1=18.4333333333333 "
     "+lat_2=18.0333333333333 +lat_0=17.8333333333333 +x_0=152400.3048006096 "
     "+y_0=30480.06096012192"},
    {75, "American Samoa", kStateLambert, 5300,
     "+proj=lcc +ellps=clrk66 +lon_0=-170 +lat_1=-14.2666666666667 +lat_2=-14.2666666666667 "
     "+lat_0=-14.2666666666667 +x_0=152400.3048006096 +y_0=95169.31165862332"},
    {100, "Clarke 1866", kSpheroid, 0, "+ellps=clrk66"},
    {200, "Clarke 1880", kSpheroid, 0, "+ellps=clrk80"},
    {300, "International 1924", kSpheroid, 0, "+ellps=intl"},
    {400, "Bessel 1841", kSpheroid, 0, "+ellps=bessel"},
    {500, "Bessel 1841 (Namibia)", kSpheroid, 0, "+ellps=bess_nam"},
    {600, "Airy 1830", kSpheroid, 0, "+ellps=airy"},
    {700, "Modified Airy", kSpheroid, 0, kModifiedAiry},
    {800, "Australian National", kSpheroid, 0, "+ellps=aust_SA"},
    {900, "Clarke 1880 (IGN)", kSpheroid, 0, "+ellps=clrk80ign"},
    {1000, "Everest 1830", kSpheroid, 0, "+ellps=evrst30"},
    {1100, "Everest 1948", kSpheroid, 0, "+ellps=evrst48"},
    {1200, "Everest 1956", kSpheroid, 0, "+a=6377301.243 +rf=300.8017255"},
    {1300, "Everest 1969", kSpheroid, 0, "+ellps=evrst69"},
    {1400, "Everest (Sabah and Sarawak)", kSpheroid, 0, "+ellps=evrstSS"},
    {1500, "Fischer 1960 (Mercury)", kSpheroid, 0, "+ellps=fschr60"},
    {1600, "Modified Fischer 1960", kSpheroid, 0, "+ellps=fschr60m"},
    {1700, "Fischer 1968", kSpheroid, 0, "+ellps=fschr68"},
    {1800, "GRS 1967", kSpheroid, 0, "+ellps=GRS67"},
    {1900, "GRS 1980", kSpheroid, 0, "+ellps=GRS80"},
    {2000, "Helmert 1906", kSpheroid, 0, "+ellps=helmert"},
    {2100, "Hough 1960", kSpheroid, 0, "+ellps=hough"},
    {2200, "Krassovsky 1940", kSpheroid, 0, "+ellps=krass"},
    {2300, "Plessis 1817", kSpheroid, 0, "+a=6376523 +rf=308.64"},
    {2400, "South East Asia 1956", kSpheroid, 0, "+ellps=SEasia"},
    {2500, "WGS 1960", kSpheroid, 0, "+ellps=WGS60"},
    {2600, "WGS 1966", kSpheroid, 0, "+ellps=WGS66"},
    {2700, "WGS 1972", kSpheroid, 0, "+ellps=WGS72"},
    {2800, "WGS 1984", kSpheroid, 0, "+ellps=WGS84"},
    {2900, "Walbeck", kSpheroid, 0, "+ellps=walbeck"},
    {3000, "Clarke 1880 (RGS)", kSpheroid, 0, "+a=6378249.145 +rf=293.465"},
    {5001, "Alabama East", kStateTransverse, 101,
     "+proj=tmerc +ellps=clrk66 +lon_0=-85.8333333333333 +lat_0=30.5 +k_0=.99996 "
     "+x_0=152400.3048006096"},
    {5002, "Alabama West", kStateTransverse, 102,
     "+proj=tmerc +ellps=clrk66 +lon_0=-87.5 +lat_0=30 +k_0=.9999333333333333 "
     "+x_0=152400.3048006096"},
    {5003, "Arizona East", kStateTransverse, 201,
     "+proj=tmerc +ellps=clrk66 +lon_0=-110.1666666666667 +lat_0=31 +k_0=.9999 "
     "+x_0=152400.3048006096"},
    {5004, "Arizona Central", kStateTransverse, 202,
     "+proj=tmerc +ellps=clrk66 +lon_0=-111.9166666666667 +lat_0=31 +k_0=.9999 "
     "+x_0=152400.3048006096"},
    {5005, "Arizona West", kStateTransverse, 203,
     "+proj=tmerc +ellps=clrk66 +lon_0=-113.75 +lat_0=31 +k_0=.9999333333333333 "
     "+x_0=152400.3048006096"},
    {5006, "Delaware", kStateTransverse, 700,
     "+proj=tmerc +ellps=clrk66 +lon_0=-75.4166666666667 +lat_0=38 +k_0=.999995 "
     "+x_0=152400.3048006096"},
    {5007, "Florida East", kStateTransverse, 901,
     "+proj=tmerc +ellps=clrk66 +lon_0=-81 +lat_0=24.3333333333333 +k_0=.9999411764705882 "
     "+x_0=152400.3048006096"},
    {5008, "Florida West", kStateTransverse, 902,
     "+proj=tmerc +ellps=clrk66 +lon_0=-82 +lat_0=24.3333333333333 +k_0=.9999411764705882 "
     "+x_0=152400.3048006096"},
    {5009, "Georgia East", kStateTransverse, 1001,
     "+proj=tmerc +ellps=clrk66 +lon_0=-82.1666666666667 +lat_0=30 +k_0=.9999 "
     "+x_0=152400.3048006096"},
    {5010, "Georgia West", kStateTransverse, 1002,
     "+proj=tmerc +ellps=clrk66 +lon_0=-84.1666666666667 +lat_0=30 +k_0=.9999 "
     "+x_0=152400.3048006096"},
    {5011, "Idaho East", kStateTransverse, 1101,
     "+proj=tmerc +ellps=clrk66 +lon_0=-112.1666666666667 +lat_0=41.6666666666667 "
     "+k_0=.9999473684210526 +x_0=152400.3048006096"},
    {5012, "Idaho Central", kStateTransverse, 1102,
     "+proj=tmerc +ellps=clrk66 +lon_0=-114 +lat_0=41.6666666666667 +k_0=.9999473684210526 "
     "+x_0=152400.3048006096"},
    {5013, "Idaho West", kStateTransverse, 1103,
     "+proj=tmerc +ellps=clrk66 +lon_0=-115.75 +lat_0=41.6666666666667 +k_0=.9999333333333333 "
     "+x_0=152400.3048006096"},
    {5014, "Illinois East", kStateTransverse, 1201,
     "+proj=tmerc +ellps=clrk66 +lon_0=-88.3333333333333 +lat_0=36.6666666666667 +k_0=.999975 "
     "+x_0=152400.3048006096"},
    {5015, "Illinois West", kStateTransverse, 1202,
     "+proj=tmerc +ellps=clrk66 +lon_0=-90.1666666666667 +lat_0=36.6666666666667 "
     "+k_0=.9999411764705882 +x_0=152400.3048006096"},
    {5016, "Indiana East", kStateTransverse, 1301,
     "+proj=tmerc +ellps=clrk66 +lon_0=-85.6666666666667 +lat_0=37.5 +k_0=.9999666666666667 "
     "+x_0=152400.3048006096"},
    {5017, "Indiana West", kStateTransverse, 1302,
     "+proj=tmerc +ellps=clrk66 +lon_0=-87.0833333333333 +lat_0=37.5 +k_0=.9999666666666667 "
     "+x_0=152400.3048006096"},
    {5018, "Maine East", kStateTransverse, 1801,
     "+proj=tmerc +ellps=clrk66 +lon_0=-68.5 +lat_0=43.8333333333333 +k_0=.9999 "
     "+x_0=152400.3048006096"},
    {5019, "Maine West", kStateTransverse, 1802,
     "+proj=tmerc +ellps=clrk66 +lon_0=-70.1666666666667 +lat_0=42.8333333333333 "
     "+k_0=.9999666666666667 +x_0=152400.3048006096"},
    {5020, "Michigan East (old)", kStateTransverse, 2101,
     "+proj=tmerc +ellps=clrk66 +lon_0=-83.6666666666667 +lat_0=41.5 +k_0=.9999428571428571 "
     "+x_0=152400.3048006096"},
    {5021, "Michigan Central (old)", kStateTransverse, 2102,
     "+proj=tmerc +ellps=clrk66 +lon_0=-85.75 +lat_0=41.5 +k_0=.9999090909090909 "
     "+x_0=152400.3048006096"},
    {5022, "Michigan West (old)", kStateTransverse, 2103,
     "+proj=tmerc +ellps=clrk66 +lon_0=-88.75 +lat_0=41.5 +k_0=.9999090909090909 "
     "+x_0=152400.3048006096"},
    {5023, "Mississippi East", kStateTransverse, 2301,
     "+proj=tmerc +ellps=clrk66 +lon_0=-88.8333333333333 +lat_0=29.6666666666667 +k_0=.99996 "
     "+x_0=152400.3048006096"},
    {5024, "Mississippi West", kStateTransverse, 2302,
     "+proj=tmerc +ellps=clrk66 +lon_0=-90.3333333333333 +lat_0=30.5 +k_0=.9999411764705882 "
     "+x_0=152400.3048006096"},
    {5025, "Missouri East", kStateTransverse, 2401,
     "+proj=tmerc +ellps=clrk66 +lon_0=-90.5 +lat_0=35.8333333333333 +k_0=.9999333333333333 "
     "+x_0=152400.3048006096"},
    {5026, "Missouri Central", kStateTransverse, 2402,
     "+proj=tmerc +ellps=clrk66 +lon_0=-92.5 +lat_0=35.8333333333333 +k_0=.9999333333333333 "
     "+x_0=152400.3048006096"},
    {5027, "Missouri West", kStateTransverse, 2403,
     "+proj=tmerc +ellps=clrk66 +lon_0=-94.5 +lat_0=36.1666666666667 +k_0=.9999411764705882 "
     "+x_0=152400.3048006096"},
    {5028, "Nevada East", kStateTransverse, 2701,
     "+proj=tmerc +ellps=clrk66 +lon_0=-115.5833333333333 +lat_0=34.75 +k_0=.9999 "
     "+x_0=152400.3048006096"},
    {5029, "Nevada Central", kStateTransverse, 2702,
     "+proj=tmerc +ellps=clrk66 +lon_0=-116.6666666666667 +lat_0=34.75 +k_0=.9999 "
     "+x_0=152400.3048006096"},
    {5030, "Nevada West", kStateTransverse, 2703,
     "+proj=tmerc +ellps=clrk66 +lon_0=-118.5833333333333 +lat_0=34.75 +k_0=.9999 "
     "+x_0=152400.3048006096"},
    {5031, "New Hampshire", kStateTransverse, 2800,
     "+proj=tmerc +ellps=clrk66 +lon_0=-71.6666666666667 +lat_0=42.5 +k_0=.9999666666666667 "
     "+x_0=152400.3048006096"},
    {5032, "New Jersey", kStateTransverse, 2900,
     "+proj=tmerc +ellps=clrk66 +lon_0=-74.6666666666667 +lat_0=38.8333333333333 +k_0=.999975 "
     "+x_0=609601.2192024384"},
    {5033, "New Mexico East", kStateTransverse, 3001,
     "+proj=tmerc +ellps=clrk66 +lon_0=-104.3333333333333 +lat_0=31 +k_0=.9999090909090909 "
     "+x_0=152400.3048006096"},
    {5034, "New Mexico Central", kStateTransverse, 3002,
     "+proj=tmerc +ellps=clrk66 +lon_0=-106.25 +lat_0=31 +k_0=.9999 +x_0=152400.3048006096"},
    {5035, "New Mexico West", kStateTransverse, 3003,
     "+proj=tmerc +ellps=clrk66 +lon_0=-107.8333333333333 +lat_0=31 +k_0=.9999166666666667 "
     "+x_0=152400.3048006096"},
    {5036, "New York East", kStateTransverse, 3101,
     "+proj=tmerc +ellps=clrk66 +lon_0=-74.3333333333333 +lat_0=40 +k_0=.9999666666666667 "
     "+x_0=152400.3048006096"},
    {5037, "New York Central", kStateTransverse, 3102,
     "+proj=tmerc +ellps=clrk66 +lon_0=-76.5833333333333 +lat_0=40 +k_0=.9999375 "
     "+x_0=152400.3048006096"},
    {5038, "New York West", kStateTransverse, 3103,
     "+proj=tmerc +ellps=clrk66 +lon_0=-78.5833333333333 +lat_0=40 +k_0=.9999375 "
     "+x_0=152400.3048006096"},
    {5039, "Rhode Island", kStateTransverse, 3800,
     "+proj=tmerc +ellps=clrk66 +lon_0=-71.5 +lat_0=41.0833333333333 +k_0=.99999375 "
     "+x_0=152400.3048006096"},
    {5040, "Vermont", kStateTransverse, 4400,
     "+proj=tmerc +ellps=clrk66 +lon_0=-72.5 +lat_0=42.5 +k_0=.9999642857142857 "
     "+x_0=152400.3048006096"},
    {5041, "Wyoming East", kStateTransverse, 4901,
     "+proj=tmerc +ellps=clrk66 +lon_0=-105.1666666666667 +lat_0=40.6666666666667 "
     "+k_0=.9999411764705882 +x_0=152400.3048006096"},
    {5042, "Wyoming East Central", kStateTransverse, 4902,
     "+proj=tmerc +ellps=clrk66 +lon_0=-107.3333333333333 +lat_0=40.6666666666667 "
     "+k_0=.9999411764705882 +x_0=152400.3048006096"},
    {5043, "Wyoming West Central", kStateTransverse, 4903,
     "+proj=tmerc +ellps=clrk66 +lon_0=-108.75 +lat_0=40.6666666666667 +k_0=.9999411764705882 "
     "+x_0=152400.3048006096"},
    {5044, "Wyoming West", kStateTransverse, 4904,
     "+proj=tmerc +ellps=clrk66 +lon_0=-110.0833333333333 +lat_0=40.6666666666667 "
     "+k_0=.9999411764705882 +x_0=152400.3048006096"},
    {5045, "Alaska 2", kStateTransverse, 5002,
     "+proj=tmerc +ellps=clrk66 +lon_0=-142 +lat_0=54 +k_0=.9999 +x_0=152400.3048006096"},
    {5046, "Alaska 3", kStateTransverse, 5003,
     "+proj=tmerc +ellps=clrk66 +lon_0=-146 +lat_0=54 +k_0=.9999 +x_0=152400.3048006096"},
    {5047, "Alaska 4", kStateTransverse, 5004,
     "+proj=tmerc +ellps=clrk66 +lon_0=-150 +lat_0=54 +k_0=.9999 +x_0=152400.3048006096"},
    {5048, "Alaska 5", kStateTransverse, 5005,
     "+proj=tmerc +ellps=clrk66 +lon_0=-154 +lat_0=54 +k_0=.9999 +x_0=152400.3048006096"},
    {5049, "Alaska 6", kStateTransverse, 5006,
     "+proj=tmerc +ellps=clrk66 +lon_0=-158 +lat_0=54 +k_0=.9999 +x_0=152400.3048006096"},
    {5050, "Alaska 7", kStateTransverse, 5007,
     "+proj=tmerc +ellps=clrk66 +lon_0=-162 +lat_0=54 +k_0=.9999 +x_0=213360.4267208534"},
    {5051, "Alaska 8", kStateTransverse, 5008,
     "+proj=tmerc +ellps=clrk66 +lon_0=-166 +lat_0=54 +k_0=.9999 +x_0=152400.3048006096"},
    {5052, "Alaska 9", kStateTransverse, 5009,
     "+proj=tmerc +ellps=clrk66 +lon_0=-170 +lat_0=54 +k_0=.9999 +x_0=182880.3657607315"},
    {5053, "Hawaii 1", kStateTransverse, 5101,
     "+proj=tmerc +ellps=clrk66 +lon_0=-155.5 +lat_0=18.8333333333333 +k_0=.9999666666666667 "
     "+x_0=152400.3048006096"},
    {5054, "Hawaii 2", kStateTransverse, 5102,
     "+proj=tmerc +ellps=clrk66 +lon_0=-156.6666666666667 +lat_0=20.3333333333333 "
     "+k_0=.9999666666666667 +x_0=152400.3048006096"},
    {5055, "Hawaii 3", kStateTransverse, 5103,
     "+proj=tmerc +ellps=clrk66 +lon_0=-158 +lat_0=21.1666666666667 +k_0=.99999 "
     "+x_0=152400.3048006096"},
    {5056, "Hawaii 4", kStateTransverse, 5104,
     "+proj=tmerc +ellps=clrk66 +lon_0=-159.5 +lat_0=21.8333333333333 +k_0=.99999 "
     "+x_0=152400.3048006096"},
    {5057, "Hawaii 5", kStateTransverse, 5105,
     "+proj=tmerc +ellps=clrk66 +lon_0=-160.1666666666667 +lat_0=21.6666666666667 +k_0=1 "
     "+x_0=152400.3048006096"},
    {5101, "France Zone I", kMiscLambert, 0,
     "+proj=lcc +lat_1=49.5 +lat_0=49.5 +lon_0=0 +k_0=0.999877341 +x_0=600000 +y_0=1200000 "
     "+ellps=clrk80ign +pm=paris"},
    {5102, "France Zone II", kMiscLambert, 0,
     "+proj=lcc +lat_1=46.8 +lat_0=46.8 +lon_0=0 +k_0=0.99987742 +x_0=600000 +y_0=2200000 "
     "+ellps=clrk80ign +pm=paris"},
    {5103, "France Zone III", kMiscLambert, 0,
     "+proj=lcc +lat_1=44.1 +lat_0=44.1 +lon_0=0 +k_0=0.999877499 +x_0=600000 +y_0=3200000 "
     "+ellps=clrk80ign +pm=paris"},
    {5104, "Algeria North", kMiscLambert, 0,
     "+proj=lcc +lat_1=36 +lat_0=36 +lon_0=2.7 +k_0=0.999625544 +x_0=500135 +y_0=300090 "
     "+a=6378249.145 +rf=293.465"},
    {5105, "Algeria South", kMiscLambert, 0,
     "+proj=lcc +lat_1=33.3 +lat_0=33.3 +lon_0=2.7 +k_0=0.999625769 +x_0=500135 +y_0=300090 "
     "+a=6378249.145 +rf=293.465"},
    {5106, "Morocco North", kMiscLambert, 0,
     "+proj=lcc +lat_1=33.3 +lat_0=33.3 +lon_0=-5.4 +k_0=0.999625769 +x_0=500000 +y_0=300000 "
     "+ellps=clrk80ign"},
    {5107, "Morocco South", kMiscLambert, 0,
     "+proj=lcc +lat_1=29.7 +lat_0=29.7 +lon_0=-5.4 +k_0=0.999615596 +x_0=500000 +y_0=300000 "
     "+ellps=clrk80ign"},
    {5108, "Jamaica", kMiscLambert, 0,
     "+proj=lcc +lat_1=18 +lat_0=18 +lon_0=-77 +x_0=250000 +y_0=150000 +ellps=clrk66"},
    {5109, "Cuba North", kMiscLambert, 0,
     "+proj=lcc +lat_0=22.35 +lon_0=-81 +lat_1=23 +lat_2=21.7 +x_0=500000 +y_0=280296.016 "
     "+ellps=clrk66"},
    {5110, "Cuba South", kMiscLambert, 0,
     "+proj=lcc +lat_0=20.7166666666667 +lon_0=-76.8333333333333 +lat_1=21.3 "
     "+lat_2=20.1333333333333 +x_0=500000 +y_0=229126.939 +ellps=clrk66"},
    {5111, "Quebec", kMiscLambert, 0,
     "+proj=lcc +lat_0=44 +lon_0=-68.5 +lat_1=60 +lat_2=46 +ellps=clrk66"},
    {5201, "BLM Zone 14", kMiscTransverse, 0,
     "+proj=tmerc +lat_0=0 +lon_0=-99 +k_0=0.9996 +x_0=500000.001016002 +ellps=clrk66"},
    {5202, "BLM Zone 15", kMiscTransverse, 0,
     "+proj=tmerc +lat_0=0 +lon_0=-93 +k_0=0.9996 +x_0=500000.001016002 +ellps=clrk66"},
    {5203, "BLM Zone 16", kMiscTransverse, 0,
     "+proj=tmerc +lat_0=0 +lon_0=-87 +k_0=0.9996 +x_0=500000.001016002 +ellps=clrk66"},
    {5204, "BLM Zone 17", kMiscTransverse, 0,
     "+proj=tmerc +lat_0=0 +lon_0=-81 +k_0=0.9996 +x_0=500000.001016002 +ellps=clrk66"},
    {5205, "British National Grid", kMiscTransverse, 0,
     "+proj=tmerc +lat_0=49 +lon_0=-2 +k_0=0.9996012717 +x_0=400000 +y_0=-100000 +ellps=airy"},
    {5206, "Irish National Grid", kMiscTransverse, 0,
     "+proj=tmerc +lat_0=53.5 +lon_0=-8 +k_0=1.000035 +x_0=200000 +y_0=250000 +a=6377340.189 "
     "+rf=299.3249646"},
    {5207, "Italy Zone 1", kMiscTransverse, 0,
     "+proj=tmerc +lat_0=0 +lon_0=9 +k_0=0.9996 +x_0=1500000 +ellps=intl"},
    {5208, "Italy Zone 2", kMiscTransverse, 0,
     "+proj=tmerc +lat_0=0 +lon_0=15 +k_0=0.9996 +x_0=2520000 +ellps=intl"},
    {5209, "Egypt Blue Belt", kMiscTransverse, 0,
     "+proj=tmerc +lat_0=30 +lon_0=35 +x_0=300000 +y_0=1100000 +ellps=helmert"},
    {5210, "Egypt Red Belt", kMiscTransverse, 0,
     "+proj=tmerc +lat_0=30 +lon_0=31 +x_0=615000 +y_0=810000 +ellps=helmert"},
    {5211, "Egypt Purple Belt", kMiscTransverse, 0,
     "+proj=tmerc +lat_0=30 +lon_0=27 +x_0=700000 +y_0=200000 +ellps=helmert"},
    {5212, "Nigeria West Belt", kMiscTransverse, 0,
     "+proj=tmerc +lat_0=4 +lon_0=4.5 +k_0=0.99975 +x_0=230738.26 +a=6378249.145 +rf=293.465"},
    {5213, "Nigeria Mid Belt", kMiscTransverse, 0,
     "+proj=tmerc +lat_0=4 +lon_0=8.5 +k_0=0.99975 +x_0=670553.98 +a=6378249.145 +rf=293.465"},
    {5214, "Nigeria East Belt", kMiscTransverse, 0,
     "+proj=tmerc +lat_0=4 +lon_0=12.5 +k_0=0.99975 +x_0=1110369.7 +a=6378249.145 +rf=293.465"},
    {5215, "Sweden 2.5 Gon West", kMiscTransverse, 0,
     "+proj=tmerc +lat_0=0 +lon_0=15.8082777777778 +x_0=1500000 +ellps=bessel"},
    {5216, "Gauss-Kruger Zone 4", kMiscTransverse, 0,
     "+proj=tmerc +lat_0=0 +lon_0=21 +x_0=4500000 +ellps=krass"},
    {5217, "Hong Kong 1980", kMiscTransverse, 0,
     "+proj=tmerc +lat_0=22.3121333333333 +lon_0=114.178555555556 +x_0=836694.05 +y_0=819069.8 "
     "+ellps=intl"},
    {5301, "France Bonne", kMiscBonne, 0,
     "+proj=bonne +lat_1=45 +lon_0=0 +pm=paris +a=6376523 +rf=308.64"},
    {5302, "Portugal Bonne", kMiscBonne, 0,
     "+proj=bonne +lat_1=39.6666666666667 +lon_0=1 +pm=lisbon +ellps=bessel"},
    {5401, "Trinidad", kMiscCassini, 0,
     "+proj=cass +lat_0=10.4416666666667 +lon_0=-61.3333333333333 +x_0=86501.46392052 "
     "+y_0=65379.0134283 +a=6378293.64520876 +b=6356617.98767984"},
    {5402, "Palestine", kMiscCassini, 0,
     "+proj=cass +lat_0=31.7340969444444 +lon_0=35.2120805555556 +x_0=170251.555 +y_0=126867.909 "
     "+a=6378300.789 +b=6356566.435"},
    {5403, "Berlin Soldner", kMiscCassini, 0,
     "+proj=cass +lat_0=52.4186482777778 +lon_0=13.6272036666667 +x_0=40000 +y_0=10000 "
     "+ellps=bessel"},
    {5404, "Singapore", kMiscCassini, 0,
     "+proj=cass +lat_0=1.28764666666667 +lon_0=103.853002222222 +x_0=30000 +y_0=30000 "
     "+ellps=evrst48"},
    {5501, "Netherlands Stereographic", kMiscOther, 0,
     "+proj=sterea +lat_0=52.1561605555556 +lon_0=5.38763888888889 +k_0=0.9999079 +x_0=155000 "
     "+y_0=463000 +ellps=bessel"},
    {5502, "Swiss Oblique Mercator", kMiscOther, 0,
     "+proj=somerc +lat_0=46.9524055555556 +lon_0=7.43958333333333 +x_0=600000 +y_0=200000 "
     "+ellps=bessel"},
    {5503, "Borneo Rectified Skew Orthomorphic", kMiscOther, 0,
     "+proj=omerc +lat_0=4 +lonc=115 +alpha=53.3158204722222 +gamma=53.1301023611111 +k_0=0.99984 "
     "+x_0=590476.87 +y_0=442857.65 +ellps=evrstSS"},
    {5504, "Hungary Oblique Mercator", kMiscOther, 0,
     "+proj=somerc +lat_0=47.1443937222222 +lon_0=19.0485717777778 +k_0=0.99993 +x_0=650000 "
     "+y_0=200000 +ellps=GRS67"},
    {5505, "Krovak", kMiscOther, 0,
     "+proj=krovak +lat_0=49.5 +lon_0=24.8333333333333 +alpha=30.2881397527778 +k_0=0.9999 "
     "+ellps=bessel"},
    {5506, "Brazil Polyconic", kMiscOther, 0,
     "+proj=poly +lat_0=0 +lon_0=-54 +x_0=5000000 +y_0=10000000 +ellps=aust_SA"},
    {5507, "New Zealand Map Grid", kMiscOther, 0,
     "+proj=nzmg +lat_0=-41 +lon_0=173 +x_0=2510000 +y_0=6023150 +ellps=intl"},
    {5508, "Madagascar Oblique Mercator", kMiscOther, 0,
     "+proj=omerc +lat_0=-18.9 +lonc=46.4372291666667 +alpha=18.9 +gamma=18.9 +k_0=0.9995 "
     "+x_0=400000 +y_0=800000 +ellps=intl"},
    {5509, "United States Albers", kMiscOther, 0,
     "+proj=aea +lat_0=23 +lon_0=-96 +lat_1=29.5 +lat_2=45.5 +ellps=GRS80"},
    {5510, "Alaska Albers", kMiscOther, 0,
     "+proj=aea +lat_0=50 +lon_0=-154 +lat_1=55 +lat_2=65 +ellps=GRS80"},
    {5511, "Alaska 1", kMiscOther, 5001,
     "+proj=omerc +ellps=clrk66 +k_0=.9999 +lonc=-133.6666666666667 +lat_0=57 "
     "+alpha=-36.8698976388889 +x_0=818585.5672270928 +y_0=575219.2451072642"},
    {5512, "Guam Island", kMiscOther, 5400,
     "+proj=poly +ellps=clrk66 +x_0=50000 +y_0=50000 +lon_0=144.7487507055556 "
     "+lat_0=13.4724663527778"},
};

/// The shortest text that reads back as the same number.
std::string Exact(double number) {
    char text[32];
    return {text, std::to_chars(text, std::end(text), number).ptr};
}

}  // namespace

std::span<const Zone> Zones() {
    return kZones;
}

const Zone* FindZone(int code) {
    const Zone* found = std::ranges::lower_bound(kZones, code, {}, &Zone::code);
    return found != std::end(kZones) && found->code == code ? found : nullptr;
}

const Zone* FindStatePlane(int statePlaneCode) {
    if (statePlaneCode == 0) return nullptr;
    const Zone* found = std::ranges::find(kZones, statePlaneCode, &Zone::statePlaneCode);
    return found != std::end(kZones) ? found : nullptr;
}

const Zone* FindZoneOf(int code) {
    return code < 0 ? FindStatePlane(-code) : FindZone(code);
}

bool IsStraightMercator(int code) {
    return projection::IsOnSpheroid(code) &&
           projection::ZoneOf(code) == projection::kStraightMercator;
}

std::string DefinitionOf(int code, double rectLat, double rectLon) {
    if (!projection::IsOnSpheroid(code)) {
        const Zone* zone = FindZoneOf(code);
        return zone ? zone->definition : "";
    }
    const int utmZone = projection::ZoneOf(code);
    const Zone* spheroid = FindZone(code - utmZone);
    if (!spheroid) return "";
    if (utmZone == projection::kStraightMercator) {
        return "+proj=merc +lat_ts=" + Exact(rectLat) + " +lon_0=" + Exact(rectLon) + " " +
               spheroid->definition;
    }
    if (utmZone < 1 || utmZone > kUtmZones) return "";
    return "+proj=utm +zone=" + std::to_string(utmZone) + " " + spheroid->definition;
}

}  // namespace kv::coord
