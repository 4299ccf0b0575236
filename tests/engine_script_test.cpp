// The rules of the event engine under the scripted operator.
#include "support/engine_rules.h"
#include "support/script_face.h"

namespace test {

INSTANTIATE_ENGINE_RULES(Script, ScriptFace);

namespace {

class ScriptFaults : public Desk<ScriptFace> {};

TEST_F(ScriptFaults, AProgrammingFaultIsHeldByNobody)
{
    startIn(FrmInit.TxtMyCall);
    onKeyDown(FrmInit.TxtMyCall, [](int& /*code*/) { throw std::logic_error("a fault"); });
    EXPECT_THROW(down("a"), std::logic_error);
    EXPECT_EQ(platform::machine().notices.last(), "");
}

TEST_F(ScriptFaults, AProgrammingFaultInAServedHandlerIsHeldByNobody)
{
    startIn(FrmInit.TxtMyCall);
    onKeyDown(FrmInit.TxtMyCall, [this](int& code) {
        if (code == platform::keyF3) throw std::logic_error("a fault");
        serveUntil([] { return false; });
        note("the handler goes on");
    });
    later(std::chrono::milliseconds(5), [this] { down("F3"); });
    EXPECT_THROW(down("F2"), std::logic_error);
    EXPECT_FALSE(noted("the handler goes on"));
}

}  // namespace

}  // namespace test
