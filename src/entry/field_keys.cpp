#include "entry/field_keys.h"

#include "base/text.h"
#include "entry/commit.h"
#include "entry/offline.h"
#include "entry/undo.h"
#include "keyer/messages.h"
#include "platform/keys.h"

namespace entry {

std::size_t trimmedLength(const screen::TextBox& box)
{
    return base::length(base::trim(box.Text));
}

void markNextField(int keyCode)
{
    FrmQSO.NextField = keyCode == platform::keyTab || keyCode == platform::keySpace ? 100 : 0;
}

void toCall()
{
    FrmQSO.txtIndic.SetFocus();
    FrmQSO.txtIndic.caretToEnd();
}

void emptyAndFocus(screen::TextBox& box)
{
    box.Text = "";
    box.SetFocus();
}

void swallowF1(int& KeyCode)
{
    if (KeyCode == platform::keyF1) KeyCode = platform::keyNone;
}

void sideFieldKeyDown(int& keyCode)
{
    markNextField(keyCode);
    swallowF1(keyCode);
}

void exchangeFieldKeyDown(int& keyCode)
{
    markNextField(keyCode);
    keyer::armOnF1(keyCode);
    abortOnEscape(keyCode);
    keyer::sendOnFunctionKey(keyCode, keyer::Call::asTaken);
    reopenPaperTime(keyCode);
}

void abortOnEscape(int keyCode)
{
    if (keyCode != platform::keyEscape || FrmQSO.KeyerBusy != 0) return;
    FrmQSO.AbortFlag = 100;
    switchRecup(true);
    AbbruchX();
}

void clearKeyerBusyOnEscape(int keyCode)
{
    if (keyCode == platform::keyEscape) FrmQSO.KeyerBusy = 0;
}

}  // namespace entry
