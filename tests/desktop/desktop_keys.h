// Names of keys, as rules for every face use them, and the events that the toolkit makes of such a key.
#pragma once

#include <QString>
#include <map>
#include <stdexcept>
#include <string>

#include "base/text.h"

namespace test {

struct KeyStroke {
    Qt::Key key = Qt::Key_unknown;
    QString text;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

inline KeyStroke bareStrokeOf(const std::string& name)
{
    static const std::map<std::string, KeyStroke> named = {
        {"Tab", {Qt::Key_Tab, QStringLiteral("\t")}},
        {"Enter", {Qt::Key_Return, QStringLiteral("\r")}},
        {"Esc", {Qt::Key_Escape, QStringLiteral("\x1b")}},
        {"Space", {Qt::Key_Space, QStringLiteral(" ")}},
        {"Backspace", {Qt::Key_Backspace, QStringLiteral("\b")}},
        {"Delete", {Qt::Key_Delete, QStringLiteral("\x7f")}},
        {"Insert", {Qt::Key_Insert, {}}},
        {"Home", {Qt::Key_Home, {}}},
        {"End", {Qt::Key_End, {}}},
        {"Left", {Qt::Key_Left, {}}},
        {"Right", {Qt::Key_Right, {}}},
        {"Up", {Qt::Key_Up, {}}},
        {"Down", {Qt::Key_Down, {}}},
        {"PageUp", {Qt::Key_PageUp, {}}},
        {"PageDown", {Qt::Key_PageDown, {}}},
    };
    const auto found = named.find(name);
    if (found != named.end()) return found->second;
    if (name.size() > 1 && name.front() == 'F')
        return {static_cast<Qt::Key>(Qt::Key_F1 + std::stoi(name.substr(1)) - 1), {}, {}};
    if (base::length(name) != 1) throw std::logic_error("no such key: " + name);
    const QString text = QString::fromStdString(name);
    const bool capital = name >= "A" && name <= "Z" && name.size() == 1;
    return {static_cast<Qt::Key>(text.toUpper().at(0).unicode()), text, capital ? Qt::ShiftModifier : Qt::NoModifier};
}

/// The key of a name: "Tab", "F2", a single character; in front of it any of "Ctrl+", "Alt+" and "Shift+".
inline KeyStroke strokeOf(std::string name)
{
    struct ModifierRow {
        const char* name;
        Qt::KeyboardModifier modifier;
    };
    constexpr ModifierRow rows[] = {
        {"Ctrl+", Qt::ControlModifier}, {"Alt+", Qt::AltModifier}, {"Shift+", Qt::ShiftModifier}};
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    for (bool found = true; found;) {
        found = false;
        for (const ModifierRow& row : rows) {
            if (!name.starts_with(row.name) || modifiers.testFlag(row.modifier)) continue;
            modifiers |= row.modifier;
            name.erase(0, std::string(row.name).size());
            found = true;
        }
    }
    KeyStroke stroke = bareStrokeOf(name);
    stroke.modifiers |= modifiers;
    if (stroke.key == Qt::Key_Tab && modifiers.testFlag(Qt::ShiftModifier)) stroke = {Qt::Key_Backtab, {}, modifiers};
    const bool letter = stroke.key >= Qt::Key_A && stroke.key <= Qt::Key_Z;
    // A letter with Ctrl comes as its control character.
    if (letter && modifiers.testFlag(Qt::ControlModifier)) stroke.text = QChar(stroke.key - Qt::Key_A + 1);
    return stroke;
}

}  // namespace test
