#include "screen/frm_anzeigen_places.h"

#include "screen/placing.h"

namespace screen::review_places {

double putOptions(std::initializer_list<OptionRow> rows)
{
    constexpr double pitch = 360;
    double top = firstOption;
    for (const OptionRow& row : rows) {
        put(row.option, row.caption, {margin, top, optionWidth, optionHeight});
        setFont({&row.option}, 9, false);
        top += pitch;
    }
    return top - pitch + optionHeight + margin;
}

}  // namespace screen::review_places
