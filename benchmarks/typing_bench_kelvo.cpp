// The desktop program as it is, with a watch on the keys that are typed into it. Tells what it saw when it ends.
#include <memory>

#include "desktop/desktop_program.h"
#include "desktop/run_program.h"
#include "key_watch.h"

int main(int argc, char** argv)
{
    std::unique_ptr<bench::KeyWatch> watch;
    const int status = desktop::runProgram(argc, argv, [&watch](desktop::DesktopProgram& program) {
        const auto entryOpen = [&program] { return program.picture().form == "FrmQSO"; };
        watch = std::make_unique<bench::KeyWatch>(program.form(), entryOpen, [&program] { return program.settled(); });
        QObject::connect(&program, &desktop::DesktopProgram::finished, [&watch] {
            watch->tell();
            watch.reset();
        });
    });
    return status;
}
