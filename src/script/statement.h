// A script as it was read: its statements, each with the words behind its verb.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace script {

/// What a statement does. One verb has one rule of grammar (see grammar.h) and one doer.
enum class Verb {
    now,
    wait,
    after,
    screen,
    soundCard,
    port,
    printer,
    drive,
    unplug,
    file,
    wav,
    sql,
    start,
    restart,
    click,
    focus,
    doubleClick,
    type,
    paste,
    key,
    keyDown,
    keyUp,
    keyRepeat,
    hold,
    release,
    row,
    doubleRow,
    close,
    answer,
    message,
    messageLike,
    messageAny,
    noMessage,
    expectProperty,
    expectFocus,
    expectForm,
    expectEnded,
    expectOff,
    expectState,
    expectRows,
    expectRow,
    expectGrid,
    expectGridRows,
    expectCurrent,
    expectList,
    expectKeyed,
    expectSounds,
    expectFile,
    noFile,
    showProperty,
    showControls,
    showState,
    showTable,
    showGrid,
    showFile,
    showMessages,
    showNotices,
    showSerial,
    showSounds,
    showPrinter,
    showHelp,
    showFocus,
    showForm,
};

/// A word of a line. A quoted one is never taken for a word of the language.
struct Word {
    std::string text;
    bool quoted = false;
};

struct Statement {
    int line = 0;  ///< from 1
    Verb verb = Verb::now;
    std::vector<Word> words;                 ///< behind the verb
    std::vector<std::string> lines;          ///< what stood behind "|" in the lines below
    std::shared_ptr<const Statement> later;  ///< of `after`: what is done then

    const std::string& text(std::size_t word) const { return words.at(word).text; }
};

struct Script {
    std::string fileName;
    std::vector<Statement> statements;
};

}  // namespace script
