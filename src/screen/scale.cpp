#include "screen/scale.h"

#include "runstate/modul1.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"

namespace screen {

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
    scaleForm(FrmQSO);
}

void MFormMare()
{
    scaleForm(FrmQSO);
}

}  // namespace qso

}  // namespace screen
