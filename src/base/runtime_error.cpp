#include "base/runtime_error.h"

namespace base {

namespace {

SwallowedErrorSink& currentSink()
{
    static SwallowedErrorSink sink;
    return sink;
}

}  // namespace

void setSwallowedErrorSink(SwallowedErrorSink sink)
{
    currentSink() = std::move(sink);
}

void reportSwallowed(const RuntimeError& error)
{
    if (currentSink()) currentSink()(error);
}

ResumeNext::ResumeNext()
    : ResumeNext([](const RuntimeError& error) {
          if (error.number() != noCurrentRecord) reportSwallowed(error);
      })
{
}

ResumeNext::ResumeNext(OnError onError) : onError_(std::move(onError))
{
}

}  // namespace base
