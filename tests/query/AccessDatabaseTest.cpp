#include "tests/query/QueryTest.h"
#include <cstdint>
#include <filesystem>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace LagomareQuery {
namespace {

namespace fs = std::filesystem;

std::string sample(const std::string& name) { return std::string(SAMPLES) + "/" + name; }

std::vector<std::string> split(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::istringstream stream(text);
  for (std::string part; std::getline(stream, part, separator);)
    parts.push_back(part);
  return parts;
}

std::string repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i)
    all += text;
  return all;
}

class AccessDatabaseTest : public QueryTest {
protected:
  /// The SQLite database made from the text that the Access file was made from; a date alone gets its midnight, as in
  /// Access.
  static void makeTwin(const std::string& sqlFile) {
    std::string sql = contentOf(sample(sqlFile));
    for (std::size_t at = 0; (at = sql.find("-01'", at)) != std::string::npos; at += 4)
      sql.insert(at + 3, " 00:00:00");
    runSql("twin.db", sql);
  }
};

TEST_F(AccessDatabaseTest, EveryTableOfTheExamplesEqualsItsText) {
  for (const auto& [access, text] :
       {std::pair("example-2010.mdb", "example-2010.sql"), std::pair("example-2013.accdb", "example-2013.sql")}) {
    fs::remove("twin.db");
    makeTwin(text);
    const auto tables = split(answer("twin.db", "SELECT name FROM sqlite_master WHERE type = 'table'"), '\n');
    EXPECT_GE(tables.size(), 14u);
    for (const std::string& table : tables) {
      const std::string sql = "SELECT * FROM " + table.substr(0, table.find(' '));
      EXPECT_EQ(answer(sample(access), sql), answer("twin.db", sql)) << sql;
    }
  }
}

TEST_F(AccessDatabaseTest, TheEnginesSqlWorks) {
  const std::string file = sample("example-2013.accdb");
  EXPECT_EQ(answer(file, "select FORMAT(DataHoraIni, 'dd/mm/yyyy'), Duracao, OptCalc, TipoSimul from tk_gerais"),
            "15/01/2000 2 1 0 .\n");
  EXPECT_EQ(answer(file, "SELECT count(*) FROM LgmVazNat v JOIN Tk_Pas_FEA p ON v.NumPto = p.NumPonto"), "72 .\n");
  EXPECT_EQ(answer(file, "SELECT Valor FROM LgmFrontEH WHERE EstHidr = '2' ORDER BY Valor"), "0.7 .\n");
  EXPECT_EQ(refusal(file, "SELECT * FROM DefGerais"), "no such table: DefGerais");
  EXPECT_NE(refusal(file, "DELETE FROM LgmFrontEH").find("may not be modified"), std::string::npos);
}

TEST_F(AccessDatabaseTest, EveryTypeComesOutAsItsTextSays) {
  makeTwin("types.sql");
  const std::string file = sample("types.mdb");
  for (const char* columns :
       {"Id, CLong, CInt, CByte", "CMoeda, CDec, CDec0, CDec28", "CTexto, CMemo", "CData, CGuid", "CBin, COle"}) {
    const std::string sql = std::string("SELECT ") + columns + " FROM Tipos";
    EXPECT_TRUE(answer(file, sql) == answer("twin.db", sql)) << columns;
  }
  for (const char* table : {"\"Tabela com espaço\"", "IdsReais", "Vazia"}) {
    const std::string sql = std::string("SELECT * FROM ") + table;
    EXPECT_EQ(answer(file, sql), answer("twin.db", sql));
  }
  // Literally, for SQLite reads some of these texts into the neighbouring double; and a truth value is never NULL.
  EXPECT_EQ(answer(file, "SELECT CDouble, CSingle, CBool FROM Tipos WHERE CDouble IS NULL OR CDouble < 1e20"),
            "0 0 0 .\n  0 .\n-0.1 -0.1 1 .\n0 0." + repeated("0", 44) + "1 0 .\n0.1 0.1 1 .\n" +
                "0.3333333333333333 0.33333334 0 .\n123456789.12345679 16777216 1 .\n0." + repeated("0", 307) +
                "22250738585072014 0." + repeated("0", 37) + "11754944 0 .\n9007199254740992 100000 1 .\n");
  EXPECT_EQ(answer(file, "SELECT CDouble = 1.7976931348623157e308, CSingle, CBool FROM Tipos WHERE CDouble > 1e20"),
            "1 340282349999999991754788743781432688640 1 .\n");
}

/// The stream cipher of encoded databases; it is its own inverse.
void cipher(std::uint32_t key, char* bytes, std::size_t size) {
  std::uint8_t state[256];
  for (int i = 0; i < 256; ++i)
    state[i] = static_cast<std::uint8_t>(i);
  for (unsigned i = 0, j = 0; i < 256; ++i) {
    j = (j + state[i] + (key >> 8 * (i % 4) & 0xFF)) % 256;
    std::swap(state[i], state[j]);
  }
  for (unsigned i = 0, j = 0; size-- > 0; ++bytes) {
    i = (i + 1) % 256;
    j = (j + state[i]) % 256;
    std::swap(state[i], state[j]);
    *bytes = static_cast<char>(*bytes ^ state[(state[i] + state[j]) % 256]);
  }
}

TEST_F(AccessDatabaseTest, AnEncodedDatabaseIsRead) {
  constexpr std::uint32_t key = 0x12345678;
  constexpr std::size_t pageSize = 4096;
  std::string bytes = contentOf(sample("types.mdb"));
  for (int i = 0; i < 4; ++i) // the header masks the key with a fixed stream
    bytes[static_cast<std::size_t>(0x3E + i)] ^= static_cast<char>(key >> 8 * i & 0xFF);
  for (std::uint32_t page = 1; page * pageSize < bytes.size(); ++page)
    cipher(key ^ page, &bytes[page * pageSize], pageSize);
  writeFile("encoded.mdb", bytes);
  const std::string sql = "SELECT * FROM Tipos";
  EXPECT_TRUE(answer("encoded.mdb", sql) == answer(sample("types.mdb"), sql));
}

/// Rows longer than 256 bytes, a deleted row, one that moved to another page, memos in their cell, in a row and in a
/// chain of rows, in code page 1252.
TEST_F(AccessDatabaseTest, Access97IsRead) {
  const std::string file = sample("jet3.mdb");
  EXPECT_EQ(answer(file, "SELECT * FROM Nós WHERE Número <> 5"),
            "1 Açude\u00A0Velho\u00A0–\u00A0“grande”\u00A0€ 1 1.5 curta  0.1 .\n2  0     .\n3 " +
                repeated("ção\u00A0", 50) + " 1 -2.25 " + repeated("ção\u00A0", 50) + " " + repeated("é", 255) +
                " 10000000000 .\n6 mudou 0 6.5  longe 6.25 .\n-4 " + repeated("x", 255) + " 0 100000 " +
                repeated("nota\u00A0única\u00A0", 30) + " " + repeated("y", 255) + " 16777216 .\n");
  EXPECT_EQ(answer(file, "SELECT Número, Nota FROM Nós WHERE Nome = 'longa'"),
            "5 " + repeated("parte\u00A0ção\u00A0", 300) + " .\n");
  EXPECT_NE(refusal(file, "SELECT * FROM Ligada").find("only linked here"), std::string::npos);
}

struct Damage {
  const char* sample;
  std::vector<std::pair<std::size_t, int>> bytes; // where, and what stands there then
  const char* sql;
  const char* reason;
};

/// Each of these damages was once read as other rows, or as fewer; the last two files cannot be read.
TEST_F(AccessDatabaseTest, DamageOfAFewBytesIsFound) {
  const std::size_t memo = contentOf(sample("jet3.mdb")).find(std::string("\xB8\x0B\0\0\0\x0A\0\0", 8));
  const Damage damages[] = {
      // Rows that begin a few bytes too late: a row without columns, another one, and one of too many.
      {"example-2010.mdb", {{282656, 0x5D}}, "SELECT * FROM LinksCmaxEH", "has 0 columns"},
      {"example-2010.mdb", {{340052, 0x0C}}, "SELECT * FROM ResVmetaEH", "has 0 columns"},
      {"example-2013.accdb", {{528438, 0x73}}, "SELECT * FROM LgmLnkCmaxSC", "has 107 columns"},
      // A row that takes the next one in, and a name that goes on behind its end.
      {"example-2010.mdb", {{282640, 0xCD}}, "SELECT * FROM LinksCmaxEH", "does not fit"},
      {"example-2010.mdb", {{253945, 0x25}}, "SELECT * FROM Pontos", "does not fit"},
      // A slot that leads into the table of slots.
      {"example-2010.mdb", {{282656, 16}, {282657, 0}}, "SELECT * FROM LinksCmaxEH", "begins outside its place"},
      // A moved row's pointer that leads to a row which did not move.
      {"jet3.mdb", {{15571, 0}}, "SELECT * FROM Nós", "moved to where no row of it is"},
      {"jet3.mdb",
       {{14351, 0x47}, {16267, 1}, {16268, 8}, {16269, 0}, {16270, 0}},
       "SELECT * FROM Nós",
       "moved to the same place"},
      // A long text whose last part leads to itself, and which says that it is a gigabyte long.
      {"jet3.mdb", {{memo + 3, 0x3F}, {26421, 12}}, "SELECT Nota FROM Nós", "lead back to each other"},
      {"jet3.mdb", {{memo, 0xB7}}, "SELECT Nota FROM Nós", "not of its length"},
      // The last column of Vazao, with a number that is none or not its own, or in another column's place.
      {"example-2010.mdb", {{127119, 0xFF}}, "SELECT * FROM Vazao", "table Vazao"},
      {"example-2010.mdb", {{127119, 4}}, "SELECT * FROM Vazao", "table Vazao"},
      {"example-2010.mdb", {{127119, 2}}, "SELECT * FROM Vazao", "table Vazao"},
      {"example-2010.mdb", {{127135, 4}}, "SELECT * FROM Vazao", "table Vazao"},
      {"example-2010.mdb", {{127135, 6}}, "SELECT * FROM Vazao", "table Vazao"},
      // A database with a password, and one in another code page.
      {"example-2013.accdb", {{0x3E, 0xFA}}, "SELECT 1", "is encrypted; remove its password first"},
      {"jet3.mdb", {{0x3C, 0x99}}, "SELECT 1", "code page 1250"},
  };
  for (const Damage& damage : damages) {
    std::string bytes = contentOf(sample(damage.sample));
    for (const auto& [place, value] : damage.bytes)
      bytes.at(place) = static_cast<char>(value);
    writeFile("damaged.mdb", bytes);
    EXPECT_NE(refusal("damaged.mdb", damage.sql).find(damage.reason), std::string::npos) << damage.reason;
  }
}

TEST_F(AccessDatabaseTest, ADefinitionThatSaysNoRowsHidesNone) {
  constexpr std::size_t rowCount = 16;
  std::string bytes = contentOf(sample("types.mdb"));
  const std::string expected = answer(sample("types.mdb"), "SELECT * FROM Tipos");
  const std::size_t definition =
      4096 * std::stoul(answer(sample("types.mdb"), "SELECT Id FROM MSysObjects WHERE Name = 'Tipos'"));
  ASSERT_EQ(bytes.at(definition + rowCount), 10);
  bytes[definition + rowCount] = 0;
  writeFile("unknown.mdb", bytes);
  EXPECT_TRUE(answer("unknown.mdb", "SELECT * FROM Tipos") == expected);
}

} // namespace
} // namespace LagomareQuery
