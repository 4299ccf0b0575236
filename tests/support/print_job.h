// The review form in the print job, with logs that were never entered, and what went to the printer.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "screen/frm_anzeigen.h"
#include "support/contest_pages.h"
#include "support/station.h"

namespace test {

/// Something that was printed.
struct Printed {
    int page = 0;
    int line = 0;
    int column = 0;
    std::string look;  ///< font, size and whether it is bold: "Arial|10|no"
    std::string text;
};

inline Printed printedItem(const std::string& line)
{
    std::istringstream parts(line);
    Printed item;
    char bar = 0;
    parts >> item.page >> bar >> item.line >> bar >> item.column >> bar;
    std::string font;
    std::string size;
    std::string bold;
    std::getline(parts, font, '|');
    std::getline(parts, size, '|');
    std::getline(parts, bold, '|');
    std::getline(parts, item.text);
    item.look = font + "|" + size + "|" + bold;
    return item;
}

class PrintJob : public ContestChoice {
 protected:
    void SetUp() override { writeStation("1"); }

    /// QSOs for a log, numbered from 1 by their codes.
    void fill(const std::string& table, int rows, int points)
    {
        PlainLog log(program.folder() / "LogKelvo.mdb");
        log.execute("BEGIN");
        for (int row = 1; row <= rows; ++row)
            log.execute("INSERT INTO " + table +
                        " (Callsign, Data, UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct) VALUES ('YO2ABC', '15.11.26', "
                        "'12:34', '599 " +
                        std::to_string(row) + "', '599 012', 'CW', '144', 'KN16AA', '" + std::to_string(points) + "')");
        log.execute("COMMIT");
    }

    void fillMaraton(const std::string& band, int rows, int points)
    {
        PlainLog log(program.folder() / "LogKelvo.mdb");
        log.execute("BEGIN");
        for (int row = 1; row <= rows; ++row)
            log.execute(
                "INSERT INTO UusLGYO2 (Callsign, Data, UTC, Sent, Rcvd, Mode, Bnd, QRALcR, NameR, Pct, QRALcE, NameE) "
                "VALUES ('YO2ABC', '15.11.26', '12:34', '599 " +
                std::to_string(row) + "', '599 012', 'CW', '" + band + "', 'KN16AA', 'DAN', '" +
                std::to_string(points) + "', 'KN05OS', 'ION')");
        log.execute("COMMIT");
    }

    /// A fresh run, the contest chosen, and the print job begun.
    void begin(int id)
    {
        choose(id);
        program.click(FrmInit.OpbTest);
        program.click(FrmInit.mnuLOG);
        program.click(FrmAnzeigen.mnuLOGDrucken);
        while (program.box()) {
        }
        asked_ = lines().size();
    }

    void answer(platform::Button button) { program.machine().boxes.queueAnswer(button, 0); }

    /// Clicks, and answers the question for the printer.
    void print(screen::Control& button)
    {
        asked_ = lines().size();
        answer(platform::buttonYes);
        program.click(button);
    }

    /// What went to the printer since the job began, or since the last print().
    std::vector<std::string> newLines()
    {
        return {lines().begin() + static_cast<std::ptrdiff_t>(asked_), lines().end()};
    }

    /// The same without the ends of documents.
    std::vector<Printed> printed()
    {
        std::vector<Printed> items;
        for (const std::string& line : newLines())
            if (line != "end") items.push_back(printedItem(line));
        return items;
    }

    /// Those on a line, counted within the page that the first of them stands on.
    std::vector<Printed> onLine(int line)
    {
        const std::vector<Printed> items = printed();
        std::vector<Printed> found;
        for (const Printed& item : items)
            if (item.page == items.front().page && item.line == line) found.push_back(item);
        return found;
    }

 private:
    const std::vector<std::string>& lines() { return program.machine().record.printed; }

    std::size_t asked_ = 0;
};

/// "COLUMN TEXT" of each, parted by bars.
inline std::string columnsOf(const std::vector<Printed>& items)
{
    std::string text;
    for (const Printed& item : items)
        text += (text.empty() ? "" : "|") + std::to_string(item.column) + " " + item.text;
    return text;
}

/// Font, size and bold when all agree in them.
inline std::string lookOf(const std::vector<Printed>& items)
{
    std::string look;
    for (const Printed& item : items) {
        if (look.empty()) look = item.look;
        if (item.look != look) return "mixed";
    }
    return look;
}

}  // namespace test
