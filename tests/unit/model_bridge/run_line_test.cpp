// The run line: its fields, their forms, and which of a pair is written.
#include "model_bridge/run_line.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace arbolith {
namespace {

enum Field {
    kMet,
    kNat,
    kSpec,
    kLc,
    kSib,
    kFreq,
    kSpx,
    kSpy,
    kRage,
    kRdbh,
    kT1Age,
    kT2Age,
    kT1Dbh,
    kT2Dbh,
    kT1Iba,
    kT2Iba,
    kIsd,
    kStk,
    kFields
};

RunRecord WhitePine() {
    RunRecord record;
    record.WDTYPE = "Softwood";
    record.SPEC = "White Pine";
    record.LC = 6;
    record.STK = 100;
    record.RAGE = 80;
    return record;
}

std::vector<std::string> FieldsOf(const RunRecord& record, const std::string& units = "Metric") {
    std::vector<std::string> fields(1);
    for (const char c : BuildRunLine(record, units, false)) {
        if (c == '\t') {
            fields.emplace_back();
        } else {
            fields.back() += c;
        }
    }
    EXPECT_EQ(fields.back(), "") << "the line ends in a tab";
    fields.pop_back();
    return fields;
}

std::string FieldOf(const RunRecord& record, Field field) {
    return FieldsOf(record)[field];
}

TEST(RunLine, OfANaturalStandByClassAndAge) {
    EXPECT_EQ(BuildRunLine(WhitePine(), "Metric", false),
              "Y\tY\tWP\t6\t0.0\t1\t0.0\t0.0\t80\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t0.0\t100\t");
}

TEST(RunLine, OfAPlantationBySiteIndexAndDiameterWithTreatments) {
    RunRecord record = WhitePine();
    record.SPEC = "E. Hemlock";
    record.NatFlag = false;
    record.PlantFlag = true;
    record.FREQ = 2722.99;
    record.SPX = 4;
    record.SPY = 4.25;
    record.LcFlag = false;
    record.SiFlag = true;
    record.SIB = 50.5;
    record.RotAgeFlag = false;
    record.RotDbhFlag = true;
    record.RDBH = 12.125;
    record.T1Age = 40;
    record.T2Age = 60;
    record.T1DBH = 7.5;
    record.T2DBH = 9;
    record.T1IBA = 30;
    record.T2IBA = 25.5;
    record.ISD = 2.5;
    record.STK = 85;
    EXPECT_EQ(
        BuildRunLine(record, "Imperial", false),
        "N\tN\tEH\t0\t50.5\t2722\t4.0\t4.25\t0\t12.12\t40.0\t60.0\t7.5\t0.0\t30.0\t25.5\t2.5\t"
        "85\t");
}

TEST(RunLine, HasEighteenFieldsEachWithItsTab) {
    const auto line = BuildRunLine(WhitePine(), "Metric", false);
    EXPECT_EQ(std::count(line.begin(), line.end(), '\t'), kFields);
    EXPECT_EQ(line.back(), '\t');
}

TEST(RunLine, SaysYOnlyForTheWordMetric) {
    EXPECT_EQ(FieldsOf(WhitePine(), "Metric")[kMet], "Y");
    EXPECT_EQ(FieldsOf(WhitePine(), "Imperial")[kMet], "N");
    EXPECT_EQ(FieldsOf(WhitePine(), "metric")[kMet], "N");
    EXPECT_EQ(FieldsOf(WhitePine(), "")[kMet], "N");
}

TEST(RunLine, RoundsTheSiteIndexToTwoDecimalsHalvesToEven) {
    RunRecord record = WhitePine();
    record.LcFlag = false;
    const auto siteIndex = [&record](double value) {
        record.SIB = value;
        return FieldOf(record, kSib);
    };
    EXPECT_EQ(siteIndex(17), "17");
    EXPECT_EQ(siteIndex(17.5), "17.5");
    EXPECT_EQ(siteIndex(17.255), "17.26");
    EXPECT_EQ(siteIndex(17.245), "17.24");
    EXPECT_EQ(siteIndex(0.25), "0.25");
    EXPECT_EQ(siteIndex(0), "0");
    EXPECT_EQ(FieldOf(record, kLc), "0");
}

TEST(RunLine, WritesTheClassWithoutASiteIndex) {
    RunRecord record = WhitePine();
    record.SIB = 17.255;
    EXPECT_EQ(FieldOf(record, kLc), "6");
    EXPECT_EQ(FieldOf(record, kSib), "0.0");
}

TEST(RunLine, LeavesTheSpacingsOfANaturalStandOut) {
    RunRecord record = WhitePine();
    record.FREQ = 2500;
    record.SPX = record.SPY = 2;
    EXPECT_EQ(FieldOf(record, kFreq), "1");
    EXPECT_EQ(FieldOf(record, kSpx), "0.0");
    EXPECT_EQ(FieldOf(record, kSpy), "0.0");
}

TEST(RunLine, RoundsThePlantationsFrequencyDown) {
    RunRecord record = WhitePine();
    record.NatFlag = false;
    const auto frequency = [&record](double value) {
        record.FREQ = value;
        return FieldOf(record, kFreq);
    };
    EXPECT_EQ(frequency(6944.44), "6944");
    EXPECT_EQ(frequency(1111.99), "1111");
    EXPECT_EQ(frequency(2500), "2500");
    EXPECT_EQ(frequency(0), "0");
}

TEST(RunLine, WritesOneRotationOnly) {
    RunRecord record = WhitePine();
    record.RDBH = 30;
    EXPECT_EQ(FieldOf(record, kRage), "80");
    EXPECT_EQ(FieldOf(record, kRdbh), "0.0");
    record.RotAgeFlag = false;
    EXPECT_EQ(FieldOf(record, kRage), "0");
    EXPECT_EQ(FieldOf(record, kRdbh), "30");
    record.RDBH = 30.255;
    EXPECT_EQ(FieldOf(record, kRdbh), "30.26");
}

TEST(RunLine, GivesTreatmentsOneToThreeDecimals) {
    RunRecord record = WhitePine();
    const auto spacing = [&record](double value) {
        record.ISD = value;
        return FieldOf(record, kIsd);
    };
    EXPECT_EQ(spacing(2), "2.0");
    EXPECT_EQ(spacing(0.25), "0.25");
    EXPECT_EQ(spacing(.5), "0.5");
    EXPECT_EQ(spacing(12.34567), "12.346");
    EXPECT_EQ(spacing(1.0005), "1.001");
    EXPECT_EQ(spacing(0), "0.0");
    EXPECT_EQ(spacing(9.9996), "10.0");
}

TEST(RunLine, NeverSetsTreatmentTwoByDiameter) {
    RunRecord record = WhitePine();
    record.T2DBH = 25;
    EXPECT_EQ(FieldOf(record, kT2Dbh), "0.0");
}

TEST(RunLine, NamesEverySpeciesByItsCode) {
    RunRecord record = WhitePine();
    const auto code = [&record](const char* wood, const char* species) {
        record.WDTYPE = wood;
        record.SPEC = species;
        return FieldOf(record, kSpec);
    };
    EXPECT_EQ(code("Softwood", "Norway Spruce"), "NS");
    EXPECT_EQ(code("Softwood", "balsam fir"), "BF");
    EXPECT_EQ(code("Hardwood", "Trembling Aspen"), "TA");
    EXPECT_EQ(code("Hardwood", "White Ash"), "WA");
    EXPECT_EQ(code("Softwood", "White Ash"), "");
    EXPECT_EQ(code("Softwood", ""), "");
}

TEST(RunLine, KnowsTheShortHardwoodList) {
    RunRecord record = WhitePine();
    record.WDTYPE = "Hardwood";
    record.SPEC = "Trembling Aspen";
    EXPECT_TRUE(BuildRunLine(record, "Metric", true).starts_with("Y\tY\t\t6\t"));
    record.SPEC = "American Beech";
    EXPECT_TRUE(BuildRunLine(record, "Metric", true).starts_with("Y\tY\tAB\t6\t"));
}

TEST(RunLine, WritesTheStockingWhole) {
    RunRecord record = WhitePine();
    record.STK = 1;
    EXPECT_EQ(FieldOf(record, kStk), "1");
    record.STK = 0;
    EXPECT_EQ(FieldOf(record, kStk), "0");
}

}  // namespace
}  // namespace arbolith
