// The page of promises names tests that exist: every file, folder and test in its last columns.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path source = KELVO_SOURCE_FOLDER;

struct Row {
    int line = 0;
    std::string promise;
    std::string heldBy;
};

/// The rows of all tables without their heads.
std::vector<Row> rowsOfPage()
{
    std::ifstream page(source / "docs/promises.md");
    EXPECT_TRUE(page.is_open());
    const std::regex row("\\| (.*) \\| ([^|]*) \\|");
    std::vector<Row> rows;
    int number = 0;
    for (std::string line; std::getline(page, line);) {
        ++number;
        std::smatch cells;
        if (!line.starts_with("|")) continue;
        if (line == "|---|---|" || line == "| Promise | Held by |") continue;
        EXPECT_TRUE(std::regex_match(line, cells, row)) << "line " << number << " has other cells: " << line;
        if (!cells.empty()) rows.push_back({number, cells[1], cells[2]});
    }
    EXPECT_GT(rows.size(), 50U);
    return rows;
}

std::vector<std::string> quoted(const std::string& cell)
{
    const std::regex ticks("`([^`]*)`");
    std::vector<std::string> words;
    for (std::sregex_iterator found(cell.begin(), cell.end(), ticks), end; found != end; ++found)
        words.push_back((*found)[1]);
    return words;
}

std::string contentOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// "Suite.Name" is a test of this file, in whatever macro and however its line is broken.
bool hasTest(const fs::path& file, const std::string& test)
{
    const std::size_t dot = test.find('.');
    if (dot == std::string::npos) return false;
    const std::regex macro("TEST(_F|_P)?\\(\\s*" + test.substr(0, dot) + ",\\s*" + test.substr(dot + 1) + "\\)");
    return std::regex_search(contentOf(file), macro);
}

/// What is wrong with a row, empty when everything that it names is there.
std::string complaintOf(const Row& row)
{
    fs::path file;
    for (const std::string& word : quoted(row.heldBy)) {
        if (word.find('/') == std::string::npos) {
            if (file.empty()) return word + " has no file in front of it";
            if (!hasTest(file, word)) return word + " is no test of " + file.filename().string();
            continue;
        }
        file = source / word;
        const bool folder = word.ends_with("/");
        if (!(folder ? fs::is_directory(file) && !fs::is_empty(file) : fs::is_regular_file(file)))
            return word + " is not there";
    }
    return {};
}

TEST(PromisesPage, EveryFileAndTestExists)
{
    for (const Row& row : rowsOfPage())
        EXPECT_EQ(complaintOf(row), "") << "docs/promises.md, line " << row.line;
}

TEST(PromisesPage, EveryPromiseHasATest)
{
    for (const Row& row : rowsOfPage()) {
        EXPECT_FALSE(row.promise.empty()) << "line " << row.line;
        EXPECT_FALSE(quoted(row.heldBy).empty()) << "line " << row.line << ": " << row.promise;
        EXPECT_EQ(std::count(row.heldBy.begin(), row.heldBy.end(), '`') % 2, 0) << "line " << row.line;
    }
}

/// A tick that is missing, a name that is misspelt: the eyes of this test see it.
TEST(PromisesPage, ATypingErrorIsSeen)
{
    EXPECT_EQ(complaintOf({1, "", "`tests/promises_page_test.cpp`: `PromisesPage.ATypingErrorIsSeen`"}), "");
    EXPECT_NE(complaintOf({1, "", "`tests/promises_page_test.cpp`: `PromisesPage.ATypingErorIsSeen`"}), "");
    EXPECT_NE(complaintOf({1, "", "`tests/promises_page_test.cpp`: `PromisePage.ATypingErrorIsSeen`"}), "");
    EXPECT_NE(complaintOf({1, "", "`tests/promises_page_test.cpp`: `ATypingErrorIsSeen`"}), "");
    EXPECT_NE(complaintOf({1, "", "`tests/promises_pages_test.cpp`"}), "");
    EXPECT_NE(complaintOf({1, "", "`tests/scripts/nothing/`"}), "");
    EXPECT_NE(complaintOf({1, "", "`PromisesPage.ATypingErrorIsSeen`"}), "");
}

}  // namespace
