// All pages of the program in all contests on the usual screens: nothing over anything else, nothing outside, no text
// cut or too small to read, none too pale.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

#include "layout_inspector.h"
#include "layout_values.h"
#include "layout_walk.h"
#include "layout_window.h"
#include "support/temporary_folder.h"

namespace {

using layout::Finding;
using layout::Findings;

constexpr int contests[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 100, 101};

struct Place {
    std::string first;  ///< contest and state in which it was found first
    int states = 0;
};

class LayoutTest : public testing::TestWithParam<QSize> {
 protected:
    LayoutTest() { layout::prepareFolder(folder_.path()); }

    void walk(int contest)
    {
        const auto look = [this, contest](const app::Picture& page, const std::string& state) {
            inspect(page, page.form + ", contest " + std::to_string(contest) + ", " + state);
        };
        const auto complain = [contest](const std::string& complaint) {
            ADD_FAILURE() << "contest " << contest << ": " << complaint;
        };
        layout::Walk(folder_.path(), {GetParam().width(), GetParam().height()}, contest, look, complain).go();
    }

    void inspect(const app::Picture& page, const std::string& state)
    {
        ++states_;
        window_.show(page);
        note(window_.findings(), page.form, state);
        note(inspector_.inspect(layout::filledIn(page), window_.room()), page.form, state);
    }

    void note(const Findings& findings, const std::string& form, const std::string& state)
    {
        for (const Finding& finding : findings) {
            Place& place = places_[form + "." + finding.control + ": " + finding.fault];
            if (place.states++ == 0) place.first = state;
        }
    }

    void tell() const
    {
        for (const auto& [fault, place] : places_)
            ADD_FAILURE() << GetParam().width() << " x " << GetParam().height() << ", " << place.first
                          << (place.states > 1 ? " and " + std::to_string(place.states - 1) + " more" : "") << "\n  "
                          << fault;
    }

    test::TemporaryFolder folder_;
    layout::Window window_{GetParam()};
    layout::Inspector inspector_{layout::showsAll};
    std::map<std::string, Place> places_;
    int states_ = 0;
};

TEST_P(LayoutTest, AllPagesAreInOrder)
{
    for (const int contest : contests)
        walk(contest);
    tell();
    EXPECT_GT(states_, 550) << "the walk ended early";
}

/// Screens of today at the scaling of the desktop that the test runs under, as far as the form has a chance there.
std::vector<QSize> screens()
{
    const double scaling = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1")).toDouble();
    const auto smaller = [](QSize a, QSize b) {
        return std::pair(a.width(), a.height()) < std::pair(b.width(), b.height());
    };
    std::set<QSize, decltype(smaller)> sizes(smaller);
    for (const QSize pixels :
         {QSize(800, 600), QSize(1024, 768), QSize(1366, 768), QSize(1920, 1080), QSize(2560, 1440)}) {
        const QSize size(static_cast<int>(std::lround(pixels.width() / scaling)),
                         static_cast<int>(std::lround(pixels.height() / scaling)));
        if (size.width() >= 800 && size.height() >= 600) sizes.insert(size);
    }
    return {sizes.begin(), sizes.end()};
}

std::string nameOf(const testing::TestParamInfo<QSize>& screen)
{
    return std::to_string(screen.param.width()) + "x" + std::to_string(screen.param.height());
}

INSTANTIATE_TEST_SUITE_P(Screens, LayoutTest, testing::ValuesIn(screens()), nameOf);

}  // namespace
