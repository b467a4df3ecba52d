#include "keyscript.h"

#include <QHash>

#include <stdexcept>

namespace KeyScript {

namespace {

struct Named
{
    Qt::Key key;
    QString text;
};

const QHash<QString, Named> &namedKeys()
{
    static const QHash<QString, Named> keys = [] {
        QHash<QString, Named> out{
            {QStringLiteral("enter"), {Qt::Key_Return, QStringLiteral("\r")}},
            {QStringLiteral("tab"), {Qt::Key_Tab, QStringLiteral("\t")}},
            {QStringLiteral("esc"), {Qt::Key_Escape, QStringLiteral("\x1b")}},
            {QStringLiteral("delete"), {Qt::Key_Delete, QStringLiteral("\x7f")}},
            {QStringLiteral("backspace"), {Qt::Key_Backspace, QStringLiteral("\b")}},
            {QStringLiteral("insert"), {Qt::Key_Insert, {}}},
            {QStringLiteral("up"), {Qt::Key_Up, {}}},
            {QStringLiteral("down"), {Qt::Key_Down, {}}},
            {QStringLiteral("left"), {Qt::Key_Left, {}}},
            {QStringLiteral("right"), {Qt::Key_Right, {}}},
            {QStringLiteral("pgup"), {Qt::Key_PageUp, {}}},
            {QStringLiteral("pgdn"), {Qt::Key_PageDown, {}}},
            {QStringLiteral("home"), {Qt::Key_Home, {}}},
            {QStringLiteral("end"), {Qt::Key_End, {}}},
            {QStringLiteral("space"), {Qt::Key_Space, QStringLiteral(" ")}},
            {QStringLiteral("plus"), {Qt::Key_Plus, QStringLiteral("+")}},
            {QStringLiteral("minus"), {Qt::Key_Minus, QStringLiteral("-")}},
        };
        for (int f = 1; f <= 12; ++f)
            out.insert(QStringLiteral("f%1").arg(f), {Qt::Key(Qt::Key_F1 + f - 1), {}});
        return out;
    }();
    return keys;
}

// A character typed as itself: Qt numbers the keys of the printable ASCII characters by their
// upper-case code; any other character comes as text alone.
Stroke character(QChar c)
{
    const char16_t code = c.toUpper().unicode();
    const Qt::Key key = code >= 0x20 && code < 0x7f ? Qt::Key(code) : Qt::Key_unknown;
    return {key, {}, QString(c)};
}

Stroke stroke(const QString &spec)
{
    const QStringList parts = spec.split(QLatin1Char('+'));
    // "Ctrl++" is Ctrl with the plus key.
    QString name = parts.last().isEmpty() && parts.size() > 1 ? QStringLiteral("+") : parts.last();
    const qsizetype modifierCount = parts.last().isEmpty() && parts.size() > 1 ? parts.size() - 2 : parts.size() - 1;
    Qt::KeyboardModifiers modifiers;
    for (qsizetype i = 0; i < modifierCount; ++i) {
        const QString modifier = parts.at(i).toLower();
        if (modifier == QLatin1String("ctrl"))
            modifiers |= Qt::ControlModifier;
        else if (modifier == QLatin1String("shift"))
            modifiers |= Qt::ShiftModifier;
        else if (modifier == QLatin1String("alt"))
            modifiers |= Qt::AltModifier;
        else
            throw std::invalid_argument(QStringLiteral("不是修饰键：%1（在{%2}中）").arg(parts.at(i), spec).toStdString());
    }
    const auto named = namedKeys().constFind(name.toLower());
    Stroke out;
    if (named != namedKeys().cend())
        out = {named->key, {}, named->text};
    else if (name.size() == 1)
        out = character(name.at(0));
    else
        throw std::invalid_argument(QStringLiteral("不是按键：{%1}").arg(spec).toStdString());
    out.modifiers = modifiers;
    // A key held with Ctrl or Alt types nothing.
    if (modifiers & (Qt::ControlModifier | Qt::AltModifier))
        out.text.clear();
    return out;
}

} // namespace

QList<Stroke> parse(const QString &keys)
{
    QList<Stroke> out;
    for (qsizetype i = 0; i < keys.size(); ++i) {
        if (keys.at(i) != QLatin1Char('{')) {
            out.append(character(keys.at(i)));
            continue;
        }
        // "{{}" and "{}}" name the braces themselves.
        const qsizetype end = keys.indexOf(QLatin1Char('}'), i + 2);
        if (end < 0)
            throw std::invalid_argument(QStringLiteral("缺少右括号：%1").arg(keys.mid(i)).toStdString());
        out.append(stroke(keys.mid(i + 1, end - i - 1)));
        i = end;
    }
    return out;
}

} // namespace KeyScript
