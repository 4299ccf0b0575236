// Where each file of results goes.
#pragma once

#include <cstdint>
#include <string>

namespace review {

/// What the name of a file of results is made of.
struct OutputName {
    int outMode = 0;    ///< 10 folder Log, 20 archive, 1000 drive A:
    int outFormat = 0;  ///< 10 text, 100 EDI
    int arhFormat = 0;  ///< 50 text, 60 ADIF
    int contest = 0;
    std::int32_t band = 0;
    std::string folder;     ///< of the program, for its folders Log and Arhiva
    std::string call;       ///< own call, reduced
    std::string concShort;  ///< short name of the contest
    std::string year;       ///< two digits
    std::string arhName;    ///< name of the archive without extension
};

/// Path of the file of a log, in the program's own form. A log of microwaves has the extension of text in every format.
/// Empty where no file is written.
std::string outputPath(const OutputName& name);

/// Path of the summary file. It has no band: the summary of a band replaces that of the band before.
std::string summaryPath(const OutputName& name);

/// The name of the present moment: of the run state and the form, with the year of the clock.
OutputName presentName();

/// A path of the program for the system: "A:" is the first removable volume. Error 76 when there is none.
std::string onThisMachine(const std::string& path);

/// The year of the clock, four digits.
std::string yearOfClock();

}  // namespace review
