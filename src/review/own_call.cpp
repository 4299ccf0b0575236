#include "review/own_call.h"

#include "base/text.h"
#include "runstate/modul1.h"

namespace review {

namespace {

bool cut(std::string& call, std::string_view suffix)
{
    if (!call.ends_with(suffix)) return false;
    call.resize(call.size() - suffix.size());
    return true;
}

}  // namespace

std::string reducedCall(std::string_view call)
{
    constexpr std::size_t scanned = 20;
    std::string reduced = base::trim(call);
    if (!cut(reduced, "/p")) cut(reduced, "/P");
    const std::size_t length = base::length(reduced);
    const bool oneLetterSuffix = length >= 2 && base::mid(reduced, length - 1, 1) == "/";
    if (oneLetterSuffix) reduced = base::left(reduced, length - 2);
    cut(reduced, "/MM");
    cut(reduced, "/QRP");
    // The scan of a short call stops at its first slash; it was never meant to meet a longer one.
    const std::size_t slash = base::length(reduced) < scanned ? reduced.find('/') : reduced.rfind('/');
    return slash == std::string::npos ? reduced : reduced.substr(slash + 1);
}

void ModifIndic()
{
    Modul1.MyCall = reducedCall(Modul1.MyCall);
}

}  // namespace review
