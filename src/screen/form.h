// A form: its controls, and its life from Load to Unload.
//
// Each form is one object with a fixed address. Load rebuilds it in place and runs its Load procedure; Unload hides and
// marks it, its data stays until the next Load. So a form may be unloaded in the middle of its own handler.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "screen/control.h"

namespace screen {

enum class FormLife { neverLoaded, loaded, unloaded };

/// What the program loop ties to a form; stays when the form is rebuilt.
struct FormHooks {
    void (*wire)() = nullptr;           ///< fills the slots of the rebuilt controls
    void (*loadProcedure)() = nullptr;  ///< the form's Load
    void (*exitEntry)() = nullptr;      ///< what the close button does
};

/// The compass rose: centre, radius and heading. It is replaced as a whole.
struct Rose {
    bool visible = false;
    double X0 = 0;  ///< twips
    double Y0 = 0;
    double R = 0;
    double heading = 0;  ///< degrees, 0 up, clockwise
};

class Form {
 public:
    explicit Form(const char* name) : name(name) {}
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form() = default;

    const std::string name;
    std::string Caption;
    double Width = 12000;  ///< twips
    double Height = 9000;
    int HelpContextID = 0;
    bool Visible = false;
    FormLife life = FormLife::neverLoaded;
    unsigned lives = 0;  ///< how often it was built anew: what was meant for an earlier life is not for this one
    FormHooks hooks;
    Control* ActiveControl = nullptr;  ///< has the focus while the form is the active one
    Control* gotFocus = nullptr;       ///< the control whose GotFocus ran last
    Rose rose;

    /// Controls in the order of their declaration, which is the order of the page.
    const std::vector<Control*>& controls() const { return controls_; }
    /// Control by name without regard to case, nullptr when there is none.
    Control* find(std::string_view controlName) const;

    /// Shows the form; it becomes the active one.
    void Show();
    void Hide();
    /// Hides the form and marks it. Its data stays until the next Load.
    void Unload();

 private:
    friend struct Control;
    std::vector<Control*> controls_;
};

/// The form that is on the screen and gets the keys, nullptr when none is.
Form* activeForm();

/// Forgets which form is on the screen: a new program run begins.
void forgetActiveForm();

/// Puts a form back to the state before its first Load. `life` tells what is remembered of it.
template <typename SomeForm>
void rebuild(SomeForm& form, FormLife life)
{
    const FormHooks hooks = form.hooks;
    const unsigned lives = form.lives + 1;
    form.Hide();
    std::destroy_at(&form);
    std::construct_at(&form);
    form.hooks = hooks;
    form.life = life;
    form.lives = lives;
    if (hooks.wire != nullptr) hooks.wire();
}

/// Loads a form anew: rebuilds it and runs its Load procedure.
template <typename SomeForm>
void load(SomeForm& form)
{
    rebuild(form, FormLife::loaded);
    if (form.hooks.loadProcedure != nullptr) form.hooks.loadProcedure();
}

/// Loads a form that was never loaded in this run, as touching it does.
template <typename SomeForm>
void touch(SomeForm& form)
{
    if (form.life == FormLife::neverLoaded) load(form);
}

}  // namespace screen
