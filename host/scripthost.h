#pragma once

#include "frame/prompter.h"

#include <QJSValue>
#include <QObject>
#include <QVariantList>

class QJSEngine;
class SuiteWindow;

// The object a script sees as `host`: it creates objects and opens controls as the suite does,
// calls members late-bound, answers the message boxes, takes screenshots.
class ScriptHost : public QObject
{
    Q_OBJECT

public:
    ScriptHost(QJSEngine &engine, SuiteWindow &suite, const QString &scriptFolder, QObject *parent = nullptr);

    Q_INVOKABLE QJSValue createObject(const QString &progId);
    Q_INVOKABLE QJSValue openControl(const QString &progId);
    // Closes the control's frame: the control is told "QueryUnload" first.
    Q_INVOKABLE bool closeControl(const QJSValue &control);
    Q_INVOKABLE QJSValue invoke(const QJSValue &object, const QJSValue &memberIdOrName, const QJSValue &args);
    // Presses a menu or toolbar key of a control, as a person's click does.
    Q_INVOKABLE bool command(const QJSValue &control, const QString &key);
    // Presses a button of the suite's toolbar or an entry of the active control's menus in the
    // suite's menu bar by its key; false when there is none or it is disabled.
    Q_INVOKABLE bool press(const QString &key);
    // A child widget of `parent` by its object name, at any depth; null when there is none.
    Q_INVOKABLE QJSValue child(const QJSValue &parent, const QString &name);
    Q_INVOKABLE void answer(const QString &text);
    Q_INVOKABLE QJSValue messages() const;
    Q_INVOKABLE void clearMessages();
    // The suite's main window, or `target` (a control, a dialog, a child widget) when given.
    Q_INVOKABLE bool screenshot(const QString &path, const QJSValue &target = QJSValue());
    Q_INVOKABLE void processEvents();
    // Types `keys` (the grammar is in keyscript.h) into `target`, a widget, or into the widget
    // that has the focus when `target` is null: each key is a real key event delivered through
    // the application, so that shortcuts, editors and the focus see it as they see a person's;
    // events are processed after every key. Each key goes to the widget inside `target` that
    // has the focus (an editor the keys opened), else to `target` itself.
    Q_INVOKABLE void keys(const QJSValue &target, const QString &keys);
    Q_INVOKABLE QString clipboard() const;
    Q_INVOKABLE void setClipboard(const QString &text);
    // With `on`, message boxes are shown as a person sees them (a dialog handler answers them)
    // instead of being answered from host.answer().
    Q_INVOKABLE void showMessageBoxes(bool on);
    // The texts of a dialog's buttons as they read (without the "&" of their shortcut keys), and
    // a click on the one that reads `text`; false when there is none.
    Q_INVOKABLE QStringList buttons(const QJSValue &dialog) const;
    Q_INVOKABLE bool clickButton(const QJSValue &dialog, const QString &text);
    Q_INVOKABLE void exit(int code);
    Q_INVOKABLE QString propsString() const;
    // The next modal dialog that opens is handed to `handler` once its event loop runs; a dialog
    // that opens without a handler is closed (a script never waits for a person).
    Q_INVOKABLE void onNextDialog(const QJSValue &handler);
    // Runs another script file (relative to the running script's folder) in the same global scope.
    Q_INVOKABLE void include(const QString &file);
    // print(...): the arguments joined by blanks on standard output.
    Q_INVOKABLE void print(const QString &line);

    bool exitRequested() const { return m_exitRequested; }
    int exitCode() const { return m_exitCode; }

    // An error inside a dialog handler, reported when the script ends.
    QString pendingError() const { return m_pendingError; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QJSValue raise(const QString &message);

    QJSEngine &m_engine;
    SuiteWindow &m_suite;
    QString m_scriptFolder;
    ScriptedPrompter m_prompter;
    ScopedPrompter m_installed;
    QJSValue m_dialogHandler;
    QString m_pendingError;
    bool m_exitRequested = false;
    int m_exitCode = 0;
};

// Runs a script file; the process's exit status. An uncaught exception is written to stderr.
int runScript(const QString &file, SuiteWindow &suite);
