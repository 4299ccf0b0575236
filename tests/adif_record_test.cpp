// A QSO as an ADIF record.
#include <gtest/gtest.h>

#include <string>

#include "review/log_lines.h"

namespace {

screen::LogRecord qso(const std::string& frequency, const std::string& mode = "CW")
{
    screen::LogRecord record;
    record.Callsign = "YO9ABC";
    record.Data = "15.11.26";
    record.UTC = "12:34";
    record.Sent = "599 034";
    record.Rcvd = "599 012";
    record.Mode = mode;
    record.Freq = frequency;
    record.QRALoc = "KN16AA";
    record.Pct = "250";
    return record;
}

TEST(AdifRecord, OfACwQsoOn144)
{
    EXPECT_EQ(review::adifRecord(qso("144")),
              "<CALL:6>YO9ABC<QSO_DATE:8>20261115<TIME_ON:4>1234<MODE:2>CW<BAND:2>2m<RST_SENT:3>599<RST_RCVD:3>599"
              "<GRIDSQUARE:6>KN16AA<EOR>");
}

struct BandRow {
    const char* frequency;
    const char* band;  ///< the field, as it stands behind the mode
};

// A frequency that the table lacks gets the mode for a number, with the unit of its range behind it.
constexpr BandRow bandRows[] = {
    {"144", "<BAND:2>2m"},
    {"432", "<BAND:4>70cm"},
    {"1296", "<BAND:4>23cm"},
    {"2320", "<BAND:4>13cm"},
    {"5760", "<BAND:3>6cm"},
    {"10368", "<BAND:3>3cm"},
    {"24192", "<BAND:6>1.25cm"},
    {"47088", "<BAND:3>6mm"},
    {"76000", "<BAND:3>4mm"},
    {"10380", "<BAND:4>CWcm"},
    {"145", "<BAND:4>CWcm"},
    {"24191", "<BAND:4>CWcm"},
    {"24193", "<BAND:4>CWmm"},
    {"99999", "<BAND:4>CWmm"},
    {"144.3", "<BAND:4>CWcm"},
    {"144.0", "<BAND:3>CWm"},
    {"0144", "<BAND:3>CWm"},
    {"50", ""},
    {"143", ""},
    {"0", ""},
    {"", ""},
    {"GHz", ""},
};

TEST(AdifRecord, HasABandFieldByTheFrequency)
{
    for (const BandRow& row : bandRows) {
        const std::string expected = "<CALL:6>YO9ABC<QSO_DATE:8>20261115<TIME_ON:4>1234<MODE:2>CW" +
                                     std::string(row.band) + "<RST_SENT:3>599<RST_RCVD:3>599<GRIDSQUARE:6>KN16AA<EOR>";
        EXPECT_EQ(review::adifRecord(qso(row.frequency)), expected) << row.frequency;
    }
}

TEST(AdifRecord, NamesTheModeAsItIsLoggedAndCutsTheReportByIt)
{
    const auto record = [](const std::string& mode, const std::string& band, const std::string& sent,
                           const std::string& rcvd) {
        return "<CALL:6>YO9ABC<QSO_DATE:8>20261115<TIME_ON:4>1234<MODE:" + mode + band + "<RST_SENT:" + sent +
               "<RST_RCVD:" + rcvd + "<GRIDSQUARE:6>KN16AA<EOR>";
    };
    EXPECT_EQ(review::adifRecord(qso("432", "CW")), record("2>CW", "<BAND:4>70cm", "3>599", "3>599"));
    EXPECT_EQ(review::adifRecord(qso("432", "SSB")), record("3>SSB", "<BAND:4>70cm", "2>59", "2>59"));
    EXPECT_EQ(review::adifRecord(qso("432", "Fm")), record("2>Fm", "<BAND:4>70cm", "7>599 034", "7>599 012"));
    EXPECT_EQ(review::adifRecord(qso("432", "Mixt")), record("4>Mixt", "<BAND:4>70cm", "7>599 034", "7>599 012"));
    EXPECT_EQ(review::adifRecord(qso("432", "FM")), record("2>FM", "<BAND:4>70cm", "2>59", "2>59"));
    EXPECT_EQ(review::adifRecord(qso("10380", "Mixt")), record("4>Mixt", "<BAND:6>Mixtcm", "7>599 034", "7>599 012"));
    EXPECT_EQ(review::adifRecord(qso("80000", "SSB")), record("3>SSB", "<BAND:5>SSBmm", "2>59", "2>59"));
}

TEST(AdifRecord, TellsWhatWasSentFromWhatWasReceived)
{
    screen::LogRecord record = qso("144");
    record.Sent = "579 001";
    record.Rcvd = "559 002";
    EXPECT_NE(review::adifRecord(record).find("<RST_SENT:3>579<RST_RCVD:3>559"), std::string::npos);
}

TEST(AdifRecord, OfAnEmptyRowHasFieldsOfLengthZero)
{
    EXPECT_EQ(review::adifRecord(screen::LogRecord{}),
              "<CALL:0><QSO_DATE:0><TIME_ON:0><MODE:0><RST_SENT:0><RST_RCVD:0><GRIDSQUARE:0><EOR>");
}

TEST(AdifRecord, GoesOnBehindAnEmptyCall)
{
    screen::LogRecord record = qso("144");
    record.Callsign = "";
    EXPECT_EQ(review::adifRecord(record).substr(0, 30), "<CALL:0><QSO_DATE:8>20261115<T");
}

TEST(AdifRecord, CountsCharactersNotBytes)
{
    screen::LogRecord record = qso("144");
    record.Callsign = "YO9ȘȚ";
    EXPECT_TRUE(review::adifRecord(record).starts_with("<CALL:5>YO9ȘȚ<QSO_DATE:8>"));
}

}  // namespace
