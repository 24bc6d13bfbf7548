#include "model/ElementType.h"
#include "model/EnumLinkAddonType.h"
#include "model/EnumPeriodicity.h"
#include "model/EnumSerieTypeFactory.h"
#include "model/EnumUnitFactoryByType.h"
#include "model/ExecutionMethod.h"
#include "model/Hemisphere.h"
#include "model/HydrologicalStateType.h"
#include "model/Sense.h"

#include <gmock/gmock.h>

using namespace testing;

namespace {

/// "id name, id name", in the order given.
template <typename... Values>
std::string listed(const Values&... values) {
  std::string text;
  ((text += (text.empty() ? "" : ", ") + std::to_string(values.id) + ' ' + values.name), ...);
  return text;
}

template <typename Values>
std::string listOf(const Values& values) {
  std::string text;
  for (const auto& value : values)
    text += (text.empty() ? "" : ", ") + listed(*value);
  return text;
}

/// The ids, ascending; idOf tells that of a value.
template <typename Values, typename IdOf>
std::string idsOf(const Values& values, IdOf idOf) {
  std::multiset<int> ids;
  for (const auto& value : values)
    ids.insert(idOf(value));
  std::string text;
  for (const int id : ids)
    text += (text.empty() ? "" : " ") + std::to_string(id);
  return text;
}

const auto groupIds = [](const auto& group) { return idsOf(group, [](auto type) { return static_cast<int>(type); }); };
const auto valueIds = [](const auto& values) { return idsOf(values, [](const auto& value) { return value->id; }); };

} // namespace

TEST(VocabularyTest, NamesKindsOfElements) {
  EXPECT_EQ(
      listed(ReservoirType(), DemandType(), HumanDemandType(), AnimalDemandType(), IndustrialDemandType(),
             AgricultureDemandType(), DrainDemandType(), JunctionType(), BasinType(), LinkType(), ArtificialLinkType(),
             NaturalLinkType()),
      "0 Reservatório, 1 Demanda, 2 Demanda humana, 3 Demanda animal, 4 Demanda industrial, 5 Demanda de irrigação, "
      "6 Dreno, 7 Junção, 8 Bacia, 9 Trecho, 10 Trecho artificial, 11 Trecho natural");
  std::string codes(12, ' ');
  for (const auto& kind : allKindValues)
    codes[static_cast<std::size_t>(kind->id)] = kind->code;
  EXPECT_EQ(codes, "RDDDDDDJBLLL");
}

TEST(VocabularyTest, GroupsKindsOfElementsWithoutTheGenericOnes) {
  EXPECT_EQ(groupIds(reservoirAndDemandTypes), "0 2 3 4 5 6");
  EXPECT_EQ(groupIds(demandTypes), "2 3 4 5 6");
  EXPECT_EQ(groupIds(consumptiveDemandTypes), "2 3 4 5");
  EXPECT_EQ(groupIds(reservoirTypes) + ", " + groupIds(junctionTypes) + ", " + groupIds(basinTypes), "0, 7, 8");
  EXPECT_EQ(groupIds(nodeTypes), "0 2 3 4 5 6 7 8");
  EXPECT_EQ(groupIds(linkTypes), "10 11");
  for (const std::string& ids :
       {groupIds(allElementTypes), valueIds(concreteKindValues), valueIds(concreteKindValuesCopy)})
    EXPECT_EQ(ids, "0 2 3 4 5 6 7 8 10 11");
  EXPECT_EQ(valueIds(linkKindValues), "10 11");
  EXPECT_EQ(valueIds(genericKindValues), "0 1 7 9");
  EXPECT_EQ(valueIds(allKindValues), "0 1 2 3 4 5 6 7 8 9 10 11");
}

TEST(VocabularyTest, ListsKindsOfSeriesInTheOrderOfDisplay) {
  EXPECT_EQ(listOf(inputSerieTypes), "0 Precipitação, 1 Evaporação, 2 Vazão natural incremental, 3 Volume meta, "
                                     "5 Demanda, 7 Perda em trânsito, 42 Limite de trecho");
  EXPECT_EQ(listOf(resultSerieTypes),
            "9 Volume inicial, 10 Volume final, 11 Vazão controlada a montante, 17 Vazão efluente, 15 Vazão afluente, "
            "14 Volume não controlado a montante, 13 Vazão não controlada a montante, 12 Volume controlado a montante, "
            "18 Volume efluente, 19 Cota, 20 Área, 35 Vazão liberada, 36 Volume liberado, 37 Vazão vertida, "
            "38 Volume vertido, 21 Demanda atendida, 23 Demanda atendida em porcentagem, "
            "22 Demanda atendida em volume, 24 Demanda consumida, 25 Demanda consumida em volume, "
            "26 Escassez de oferta, 27 Escassez de oferta em volume, 28 Demanda meta, 29 Demanda meta em volume, "
            "30 Falha no atendimento, 31 Excesso de oferta, 32 Excesso de oferta em volume, 16 Perda em trânsito, "
            "33 Volume precipitado, 34 Volume evaporado, 39 Prioridade, 40 Custo de bombeamento, 41 Sentido do trecho");
  EXPECT_EQ(listed(EnumSerieTypeFactory::makeSerieType(SerieType::WaterLoss)), "16 Perda em trânsito");
  EXPECT_THROW(static_cast<void>(EnumSerieTypeFactory::makeSerieType(static_cast<SerieType>(4))),
               std::invalid_argument);
}

TEST(VocabularyTest, HasSeventeenUnitsTwoOfThemUnderOneId) {
  EXPECT_EQ(
      listed(Dimensionless(), H(), HD(), M3S(), HM3(), MM(), M(), M3(), KM2(), RS(), Perc(), CM(), CDegree(), MG(),
             KG(), Liters(), LitersBySeconds()),
      "0 adimensional, 1 horas, 2 horas/dia, 3 m³/s, 4 hm³, 5 mm, 6 m, 7 m³, 8 km², 9 R$, 10 %, 11 cm, 12 cº, 13 Mg, "
      "13 Kg, 15 Liters, 16 LitersBySeconds");
  EXPECT_EQ(valueIds(unitValues), "0 1 2 3 4 5 6 7 8 9 10 11 12 13 13 15 16");
  EXPECT_THAT(EnumUnitFactoryByType::makeUnit(Unit::KG).name, AnyOf("Kg", "Mg"));
  EXPECT_THROW(static_cast<void>(EnumUnitFactoryByType::makeUnit(static_cast<Unit>(14))), std::invalid_argument);
  EXPECT_EQ(releaseLabel, "Vazão liberada(m³/s)");
}

TEST(VocabularyTest, NamesTheSmallFamilies) {
  EXPECT_EQ(listed(PriorityType(), RuleSimulatorType(), RuleOptimizerType(), GuaranteeCurveType(),
                   SystemGuaranteeCurveType()),
            "0 Otimizador por prioridades, 1 Simulador por regras, 2 Otimizador de regras, 3 Curva de garantia, "
            "4 Curva de garantia do sistema");
  EXPECT_EQ(listed(Continuous(), Window(), Optimization()), "0 Contínuo, 1 Janela, 2 Otimização");
  EXPECT_EQ(listed(NoHydrologicalType(), DefaultHydrologicalType(), ReservoirHydrologicalType(),
                   MonthlyReservoirHydrologicalType()),
            "0 Sem, 1 Padrão, 2 Por reservatório, 3 Por reservatório mensal");
  EXPECT_EQ(listed(NoneType(), PropagationType(), PumpingType()), "0 Nenhum, 1 Propagação, 2 Bombeamento");
  EXPECT_EQ(listed(MonthlyType(), SouthType()), "1 Mensal, 0 Sul");
  EXPECT_EQ(NorthType().name + SouthType().code, "NorteS");
  EXPECT_EQ(listed(sensesByType.at(Sense::Original), sensesByType.at(Sense::Inverted)), "0 Original, 1 Invertido");
  EXPECT_EQ(listed(sensesByName.at("Original"), sensesByName.at("Invertido")), "0 Original, 1 Invertido");
}
