// A contest in the real window, keyed as a fast operator keys it: 20 keys a second that overlap, without ever waiting
// for the program. Every QSO is in the log as it was keyed.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>
#include <string>
#include <vector>

#include "desktop_keys.h"
#include "desktop_station.h"
#include "storage/database.h"

namespace {

using test_page::DesktopStation;

struct Worked {
    std::string call;
    std::string code;
    std::string locator;  ///< empty when the station is known by then
};

/// Keys at a steady pace. A key comes up only after the next one has gone down, as under fast fingers.
class FastOperator {
 public:
    explicit FastOperator(QWidget& form) : form_(form) { clock_.start(); }

    void key(const std::string& name)
    {
        const test::KeyStroke stroke = test::strokeOf(name);
        constexpr qint64 millisecondsPerKey = 50;
        QTest::qWait(static_cast<int>(std::max<qint64>(0, next_ - clock_.elapsed())));
        next_ += millisecondsPerKey;
        send(QTest::Press, stroke);
        letGo();
        down_ = stroke;
    }
    void type(const std::string& text)
    {
        for (const char character : text)
            key(std::string(1, character));
    }
    void letGo()
    {
        if (down_.key != Qt::Key_unknown) send(QTest::Release, down_);
        down_ = {};
    }

 private:
    void send(QTest::KeyAction action, const test::KeyStroke& stroke)
    {
        QTest::sendKeyEvent(action, &form_, stroke.key, stroke.text, stroke.modifiers);
    }

    QWidget& form_;
    QElapsedTimer clock_;
    qint64 next_ = 0;
    test::KeyStroke down_;
};

void openEntry(DesktopStation& station)
{
    station.click("OpbCluj");
    station.click("OpbTest");
    station.click("TxtMyCall");
    station.type("yo2xyz");
    station.click("txtMyQRA");
    station.type("kn05os");
    station.click("TxtMyCall");
    station.key(Qt::Key_Q, Qt::AltModifier);
    ASSERT_EQ(station.picture().form, "FrmQSO");
    station.click("Cmd144");
    station.click("CmdCW");
    ASSERT_EQ(station.focus(), "txtIndic");
}

TEST(ContestDesktopTest, TwentyKeysASecondAreLoggedAsTheyWereKeyed)
{
    const std::vector<Worked> worked = {
        {"ha5abc", "001", "jn97mm"}, {"yo5aaa", "012", "kn16aa"}, {"yu1ccc", "123", "kn04ft"},
        {"lz2eee", "007", "kn13oh"}, {"om3fff", "099", "jn98ah"}, {"yo3hhh/p", "100", "kn34bj"},
    };
    DesktopStation station;
    openEntry(station);
    FastOperator fast(station.program().form());
    for (const Worked& qso : worked) {
        fast.type(qso.call);
        fast.key("Tab");
        fast.type(qso.code);
        fast.type(qso.locator);
        fast.key("Enter");
    }
    fast.letGo();
    station.settle();

    storage::RecordSet rows =
        storage::OpenDatabase(station.folder() + "\\LogKelvo.mdb").OpenRecordset("SELECT * FROM Uus144a");
    ASSERT_EQ(rows.RecordCount(), static_cast<long>(worked.size()));
    for (const Worked& qso : worked) {
        EXPECT_EQ(rows.Field("Callsign"), base::upper(qso.call));
        EXPECT_EQ(rows.Field("Rcvd"), "599 " + qso.code);
        EXPECT_EQ(rows.Field("QRALoc"), base::upper(qso.locator));
        rows.MoveNext();
    }
    EXPECT_EQ(station.text("LblQSO"), std::to_string(worked.size()));
    EXPECT_EQ(station.text("txtIndic"), "");
}

}  // namespace
