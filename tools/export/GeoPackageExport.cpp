#include "tools/export/GeoPackageExport.h"

#include "tools/export/SqliteFile.h"

#include <cstdint>
#include <cstring>
#include <fmt/format.h>
#include <string>
#include <type_traits>
#include <vector>

namespace LagomareTools {

namespace {

constexpr int sirgas2000 = 4674; // EPSG

/// The tables and the coordinate systems that the standard asks for, and ours. "GPKG" is the application id.
constexpr const char* standardTables = R"(
pragma application_id = 0x47504B47;
pragma user_version = 10300;
begin;
create table gpkg_spatial_ref_sys (
  srs_name TEXT not null,
  srs_id INTEGER not null primary key,
  organization TEXT not null,
  organization_coordsys_id INTEGER not null,
  definition TEXT not null,
  description TEXT);
create table gpkg_contents (
  table_name TEXT not null primary key,
  data_type TEXT not null,
  identifier TEXT unique,
  description TEXT default '',
  last_change DATETIME not null default (strftime('%Y-%m-%dT%H:%M:%fZ','now')),
  min_x DOUBLE,
  min_y DOUBLE,
  max_x DOUBLE,
  max_y DOUBLE,
  srs_id INTEGER,
  constraint fk_gc_r_srs_id foreign key (srs_id) references gpkg_spatial_ref_sys (srs_id));
create table gpkg_geometry_columns (
  table_name TEXT not null,
  column_name TEXT not null,
  geometry_type_name TEXT not null,
  srs_id INTEGER not null,
  z TINYINT not null,
  m TINYINT not null,
  constraint pk_geom_cols primary key (table_name, column_name),
  constraint uk_gc_table_name unique (table_name),
  constraint fk_gc_tn foreign key (table_name) references gpkg_contents (table_name),
  constraint fk_gc_srs foreign key (srs_id) references gpkg_spatial_ref_sys (srs_id));
insert into gpkg_spatial_ref_sys values
  ('Undefined Cartesian SRS', -1, 'NONE', -1, 'undefined', 'undefined Cartesian coordinate reference system'),
  ('Undefined geographic SRS', 0, 'NONE', 0, 'undefined', 'undefined geographic coordinate reference system'),
  ('WGS 84', 4326, 'EPSG', 4326,
   'GEOGCS["WGS 84",DATUM["WGS_1984",SPHEROID["WGS 84",6378137,298.257223563,AUTHORITY["EPSG","7030"]],'
   || 'AUTHORITY["EPSG","6326"]],PRIMEM["Greenwich",0,AUTHORITY["EPSG","8901"]],'
   || 'UNIT["degree",0.0174532925199433,AUTHORITY["EPSG","9122"]],AUTHORITY["EPSG","4326"]]',
   'longitude and latitude in decimal degrees on the ellipsoid WGS 84'),
  ('SIRGAS 2000', 4674, 'EPSG', 4674,
   'GEOGCS["SIRGAS 2000",DATUM["Sistema_de_Referencia_Geocentrico_para_las_AmericaS_2000",'
   || 'SPHEROID["GRS 1980",6378137,298.257222101,AUTHORITY["EPSG","7019"]],AUTHORITY["EPSG","6674"]],'
   || 'PRIMEM["Greenwich",0,AUTHORITY["EPSG","8901"]],'
   || 'UNIT["degree",0.0174532925199433,AUTHORITY["EPSG","9122"]],AUTHORITY["EPSG","4674"]]',
   'longitude and latitude in decimal degrees on the ellipsoid GRS 1980');
)";

const char* sqlTypeOf(ColumnType type) {
  switch (type) {
  case ColumnType::integer:
    return "INTEGER";
  case ColumnType::real:
    return "DOUBLE";
  case ColumnType::truth:
    return "BOOLEAN";
  case ColumnType::date:
    return "DATE";
  case ColumnType::text:
    break;
  }
  return "TEXT";
}

template <typename Number>
void appendLittleEndian(std::string& bytes, Number number) {
  std::uint64_t bits = 0;
  if constexpr (std::is_same_v<Number, double>)
    std::memcpy(&bits, &number, sizeof number);
  else
    bits = number;
  for (std::size_t byte = 0; byte < sizeof number; ++byte)
    bytes += static_cast<char>(bits >> (8 * byte) & 0xFFU);
}

/// The standard's geometry: a header with the envelope, then well-known binary. Empty for an empty line.
std::string geometryOf(const Line& line) {
  if (line.empty())
    return "";
  constexpr char littleEndianWithEnvelope = 3;
  Box box;
  box.include(line);
  std::string bytes{'G', 'P', '\0', littleEndianWithEnvelope};
  appendLittleEndian(bytes, std::uint32_t{sirgas2000});
  for (const double bound : {box.west, box.east, box.south, box.north})
    appendLittleEndian(bytes, bound);
  bytes += '\1'; // little-endian
  const bool isPoint = line.size() == 1;
  appendLittleEndian(bytes, std::uint32_t{isPoint ? 1U : 2U});
  if (!isPoint)
    appendLittleEndian(bytes, static_cast<std::uint32_t>(line.size()));
  for (const auto& [longitude, latitude] : line) {
    appendLittleEndian(bytes, longitude);
    appendLittleEndian(bytes, latitude);
  }
  return bytes;
}

/// A table in the file; without a type of geometry it holds attributes only.
struct Layer {
  const Table& table;
  const char* geometryType; ///< null, or POINT or LINESTRING
};

void create(SqliteFile& file, const Layer& layer) {
  std::string columns = "fid INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL";
  if (layer.geometryType != nullptr)
    columns += fmt::format(", geom {}", layer.geometryType);
  for (const Column& column : layer.table.columns)
    columns += fmt::format(", \"{}\" {}", column.name, sqlTypeOf(column.type));
  file.execute(fmt::format("create table {} ({})", layer.table.name, columns));
}

/// Returns the box that holds all lines.
Box fill(SqliteFile& file, const Layer& layer, const ExportInput& input) {
  const int firstCell = layer.geometryType == nullptr ? 1 : 2; // behind the geometry
  std::string parameters;
  for (int parameter = 1; parameter < firstCell + static_cast<int>(layer.table.columns.size()); ++parameter)
    parameters += fmt::format(", ?{}", parameter);
  SqliteFile::Insert insert(file, fmt::format("insert into {} values (null{})", layer.table.name, parameters));
  Box box;
  layer.table.forEachRow(input, [&](const std::vector<Cell>& cells, const Line& line) {
    const std::string geometry = geometryOf(line);
    if (layer.geometryType != nullptr)
      insert.bindBlob(1, geometry);
    int parameter = firstCell;
    for (const Cell& cell : cells)
      insert.bind(parameter++, cell);
    insert.run();
    box.include(line);
  });
  return box;
}

void describe(SqliteFile& file, const Layer& layer, const Box& box) {
  const Table& table = layer.table;
  const bool isMap = layer.geometryType != nullptr;
  file.execute(fmt::format("insert into gpkg_contents (table_name, data_type, identifier) values ('{0}', '{1}', '{0}')",
                           table.name, isMap ? "features" : "attributes"));
  if (!box.isEmpty())
    file.execute(
        fmt::format("update gpkg_contents set min_x = {}, min_y = {}, max_x = {}, max_y = {} where table_name = '{}'",
                    box.west, box.south, box.east, box.north, table.name));
  if (isMap)
    file.execute(fmt::format("update gpkg_contents set srs_id = {2} where table_name = '{0}';"
                             "insert into gpkg_geometry_columns values ('{0}', 'geom', '{1}', {2}, 0, 0)",
                             table.name, layer.geometryType, sirgas2000));
  if (table.isByElement)
    file.execute(fmt::format("create index {0}_by_element on {0} ({1})", table.name, table.columns.front().name));
}

} // namespace

void writeGeoPackage(const std::filesystem::path& path, const ExportInput& input) {
  SqliteFile file(path);
  file.execute(standardTables);
  for (const Layer& layer : {Layer{nodesTable, "POINT"}, Layer{linksTable, "LINESTRING"}, Layer{seriesTable, nullptr},
                             Layer{curvesTable, nullptr}, Layer{statesTable, nullptr}, Layer{scenarioTable, nullptr}}) {
    create(file, layer);
    describe(file, layer, fill(file, layer, input));
  }
  file.execute("commit");
}

} // namespace LagomareTools
