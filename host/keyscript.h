#pragma once

#include <QList>
#include <QString>
#include <Qt>

// The keys a script types, written as text (host.keys):
//
//   keys     := { char | "{" stroke "}" }
//   char     := any character but "{", typed as itself ("{" itself is written "{{}")
//   stroke   := { modifier "+" } name
//   modifier := Ctrl | Shift | Alt                       (any case)
//   name     := Enter | Tab | Esc | Delete | Backspace | Insert | F1 ... F12 | Up | Down | Left
//             | Right | PgUp | PgDn | Home | End | Space | Plus | Minus    (any case)
//             | one letter, digit or sign, as in {Ctrl+C} or {Shift+5}
//
// "3900{Enter}" types four digits and Enter; "{Shift+Down}{Ctrl+C}" selects a cell more and
// copies; "{Ctrl+PgDn}" goes to the last page.
namespace KeyScript {

struct Stroke
{
    Qt::Key key = Qt::Key_unknown;
    Qt::KeyboardModifiers modifiers;
    QString text; // what the key types, empty for a key that types nothing
};

// The strokes of `keys`; throws std::invalid_argument naming the first part that is not a key.
QList<Stroke> parse(const QString &keys);

} // namespace KeyScript
