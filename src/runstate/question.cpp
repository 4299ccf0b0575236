#include "runstate/question.h"

#include "base/number.h"
#include "runstate/modul1.h"

namespace runstate {

platform::Button ask(const std::string& text, const std::string& title, int style)
{
    Modul1.MsgText = text;
    Modul1.MsgTitle = title;
    Modul1.MsgStyle = base::toText(style);
    const platform::Button answer = platform::msgBox(text, style, title);
    Modul1.MsgResp = base::toText(answer);
    return answer;
}

void tell(const std::string& text, int style)
{
    ask(text, "", style);
}

}  // namespace runstate
