#include "kvload/column_names.h"

#include <algorithm>

namespace kvload {
namespace {

struct Names {
    const char* column;
    std::vector<const char*> names;
};

const std::vector<Names>& AllNames() {
    static const std::vector<Names> names = {
        {"areaname", {"AREANAME", "AREANM", "PROTNAME", "PROTRACTION", "NAME", "AREA"}},
        {"stcode",
         {"STCODE", "AREACODE", "AREACD", "PROTNUMBER", "CODE", "ACLAB", "AREAABBR", "ABBR"}},
        {"area_abbr",
         {"AREAABBR", "ABBR", "MMSCODE", "ACLAB", "AREAABBREV", "AREACODE", "AREACD", "CODE"}},
        {"projection", {"PROJECTION", "PROJCODE"}},
        {"areacode",
         {"AREACODE", "AREACD", "STCODE", "PROTNAME", "AREANAME", "ACLAB", "AREAABBR", "SURFAREA",
          "SURFAREACODE", "SURFAREACD", "ORIGAREA", "ORIGAREACODE", "AREA"}},
        {"lbnum", {"LBNUM"}},
        {"lbext", {"LBEXT"}},
        {"label", {"LABEL",           "BLOCKLAB",        "BLOCKLABEL",   "BLOCKNUMBER", "BLOCKNUM",
                   "BLOCKNO",         "BLOCK",           "BLKNO",        "BLKNUM",      "BLK",
                   "SURFBLOCK",       "SURFBLOCKNUMBER", "SURFBLOCKNUM", "SURFBLOCKNO", "ORIGBLOCK",
                   "ORIGBLOCKNUMBER", "BLOCKNBR",        "TRACTNUMBER",  "TRACTNUM",    "TRACT"}},
        {"to_areacode", {"TOAREACODE", "TOAREA", "DESTAREA", "DESTAREACODE"}},
        {"to_label", {"TOLABEL", "TOBLOCK", "DESTBLOCK", "DESTBLOCKNUMBER"}},
        {"company_no", {"COMPANYNO", "COMPANYNUMBER", "COMPANYNUM", "MMSCOMPANYNUM"}},
        {"company", {"COMPANY", "COMPANYNAME", "BUSASCNAME", "OWNER", "OWNERNAME", "LESSEE"}},
        {"percent", {"PERCENT", "ASSIGNMENTPCT", "SHARE", "PCT"}},
        {"lease_no",
         {"LEASENO", "LEASENUMBER", "LEASENUM", "LEASE", "SURFLEASE", "SURFLEASENUMBER",
          "BOTMLEASE", "BOTMLEASENUMBER"}},
        {"lplana", {"LPLANA", "PLANAREA", "MMSPLANAREACD"}},
        {"status",
         {"STATUS", "LEASESTATUSCD", "LEASESTATUS", "STATUSCODE", "STATUSCD", "BOREHOLESTATCD",
          "WELLSTATUS", "SEGSTATUS"}},
        {"lessee", {"LESSEE", "LESSEENAME"}},
        {"operator",
         {"OPERATOR", "OPERATORNAME", "OPERNAME", "OPNAME", "COMPANYNAME", "BUSASCNAME"}},
        {"lease_date", {"LEASEDATE", "LEASEEFFDATE", "EFFECTIVEDATE", "EFFDATE"}},
        {"expire_date",
         {"EXPIREDATE", "LEASEEXPIRDATE", "LEASEEXPDATE", "EXPIRATIONDATE", "EXPDATE"}},
        {"acres", {"ACRES", "CURRAREA", "CURRENTAREA", "ACREAGE"}},
        {"royalty_pct", {"ROYALTYPCT", "ROYALTYRATE", "ROYALTY"}},
        {"bonus", {"BONUS", "BIDAMOUNT"}},
        {"api_no",
         {"APINO", "APINUMBER", "APIWELLNUMBER", "API", "APINUM", "APIWELLNO", "API10", "API12",
          "API14", "UWI"}},
        {"well_name", {"WELLNAME", "WELLNO", "WELLNUMBER"}},
        {"total_depth", {"TOTALDEPTH", "BHTOTALMD", "TD"}},
        {"water_depth", {"WATERDEPTH", "WTRDEPTH"}},
        {"spud_date", {"SPUDDATE", "WELLSPUDDATE", "SPUD"}},
        {"complex_id", {"COMPLEXID", "COMPLEXIDNUM"}},
        {"structure", {"STRUCTURE", "STRUCTURENAME", "STRUCNAME"}},
        {"install_date", {"INSTALLDATE", "INSTDATE"}},
        {"removal_date", {"REMOVALDATE", "REMOVDATE"}},
        {"segment_no", {"SEGMENTNO", "SEGMENTNUM", "SEGMENTNUMBER", "SEGNO"}},
        {"product", {"PRODUCT", "PRODCODE", "PRODUCTCODE", "PRODCD"}},
        {"size_in", {"SIZEIN", "PPLSIZECODE", "SIZE", "DIAMETER"}},
        {"approval_date", {"APPROVALDATE", "APRVDATE", "APRVCODE"}},
        {"x",
         {"LONGITUDE", "LON", "LONG", "SURFLONGITUDE", "SURFLONG", "SURFLON", "LNG", "X", "XCOORD",
          "EASTING"}},
        {"y", {"LATITUDE", "LAT", "SURFLATITUDE", "SURFLAT", "Y", "YCOORD", "NORTHING"}},
        {"bottom x",
         {"BOTTLONGITUDE", "BOTMLONGITUDE", "BOTTOMLONGITUDE", "BOTTLON", "BOTMLON", "BOTLON",
          "BHLON"}},
        {"bottom y",
         {"BOTTLATITUDE", "BOTMLATITUDE", "BOTTOMLATITUDE", "BOTTLAT", "BOTMLAT", "BOTLAT",
          "BHLAT"}},
        {"wkt", {"WKT", "GEOM", "GEOMETRY", "THEGEOM", "SHAPE"}},
    };
    return names;
}

}  // namespace

const std::vector<const char*>& NamesOfColumn(std::string_view column) {
    static const std::vector<const char*> none;
    const auto found = std::ranges::find(AllNames(), column, &Names::column);
    return found == AllNames().end() ? none : found->names;
}

}  // namespace kvload
