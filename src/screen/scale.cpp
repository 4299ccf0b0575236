#include "screen/scale.h"

#include "platform/machine.h"
#include "runstate/contest_codes.h"
#include "runstate/modul1.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"

namespace screen {

namespace {

constexpr double twipsPerPixel = 15;
constexpr double designWidth = 12000;
constexpr double designHeight = 9000;

}  // namespace

void fillScreen(Form& form)
{
    const platform::ScreenSize size = platform::machine().screen.size();
    form.Width = size.width * twipsPerPixel;
    form.Height = size.height * twipsPerPixel;
    Modul1.ScaleY = static_cast<float>(form.Height / designHeight);
    Modul1.ScaleX = static_cast<float>(form.Width / designWidth);
}

void scaleForm(Form& form)
{
    const double x = Modul1.ScaleX;
    const double y = Modul1.ScaleY;
    for (Control* control : form.controls()) {
        control->Left = control->design.Left * x;
        control->Top = control->design.Top * y;
        control->Width = control->design.Width * x;
        control->Height = control->design.Height * y;
    }
}

void setDesignHeight(Control& control, double height)
{
    control.design.Height = height;
    control.Height = height * static_cast<double>(Modul1.ScaleY);
}

void setDesignWidth(Control& control, double width)
{
    control.design.Width = width;
    control.Width = width * static_cast<double>(Modul1.ScaleX);
}

void setDesignTop(Control& control, double top)
{
    control.design.Top = top;
    control.Top = top * static_cast<double>(Modul1.ScaleY);
}

namespace init {

void MForm()
{
    scaleForm(FrmInit);
}

void MFormMare()
{
    scaleForm(FrmInit);
}

}  // namespace init

namespace qso {

void MForm()
{
    if (Modul1.ConcId != runstate::maratonContest) FrmQSO.takeLowScreenPlaces();
    scaleForm(FrmQSO);
}

void MFormMare()
{
    scaleForm(FrmQSO);
}

}  // namespace qso

}  // namespace screen
