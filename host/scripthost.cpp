#include "scripthost.h"
#include "frame/automation/progids.h"

#include "controlframe.h"
#include "keyscript.h"
#include "suitewindow.h"

#include "frame/barlist.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/lumoerror.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <QJSEngine>
#include <QPixmap>
#include <QRegularExpression>
#include <QTest>
#include <QTextStream>

#include <cstdio>

namespace {

// Controls and their child collections are wrapped so that `control.Controls.tvICInit` reaches a
// child by its object name, and service objects so that their errors become script exceptions.
const char *const prelude = R"JS(
(function (host, global) {
    function bindAll(target, value) { return typeof value === 'function' ? value.bind(target) : value; }
    global.print = function (...args) { host.print(args.map(String).join(' ')); };
    global.include = function (file) { host.include(file); };
    global.__wrapControls = function (collection) {
        return new Proxy(collection, {
            get(t, p) {
                if (typeof p === 'string' && !(p in t)) {
                    const child = t.Item(p);
                    if (child) return child;
                }
                return bindAll(t, t[p]);
            }
        });
    };
    // A widget without a Controls collection (a dialog) reaches its children by object name.
    global.__wrapChildren = function (widget) {
        return new Proxy({}, { get(_, p) { return typeof p === 'string' ? host.child(widget, p) : undefined; } });
    };
    global.__wrapControl = function (control) {
        return new Proxy(control, {
            get(t, p) {
                if (p === 'Controls') return t.Controls ? __wrapControls(t.Controls) : __wrapChildren(t);
                if (p === '__target') return t;
                return bindAll(t, t[p]);
            },
            set(t, p, v) { t[p] = v; return true; }
        });
    };
    global.__wrapService = function (object) {
        return new Proxy(object, {
            get(t, p) {
                if (p === '__target') return t;
                const v = t[p];
                if (typeof v === 'function')
                    return function (...args) { return host.invoke(t, p, args); };
                return v;
            },
            set(t, p, v) { t[p] = v; return true; }
        });
    };
})
)JS";

QVariant fromScript(const QJSValue &value)
{
    if (value.isQObject()) {
        QObject *object = value.toQObject();
        return QVariant::fromValue(object);
    }
    // A wrapped control or service answers its object through the proxy's get trap only.
    if (value.isObject()) {
        const QJSValue target = value.property(QStringLiteral("__target"));
        if (target.isQObject())
            return QVariant::fromValue(target.toQObject());
    }
    return value.toVariant();
}

QObject *objectOf(const QJSValue &value)
{
    return fromScript(value).value<QObject *>();
}

// "是(&Y)" reads 是, "&Yes" reads Yes.
QString withoutMnemonic(QString text)
{
    static const QRegularExpression bracketed(QStringLiteral("\\(&[^)]\\)"));
    return text.remove(bracketed).remove(QLatin1Char('&'));
}

// Where the next key goes: the focused widget inside `target`, else `target`.
QWidget *keyReceiver(QWidget *target)
{
    QWidget *focused = target ? target->window()->focusWidget() : QApplication::focusWidget();
    if (!target)
        return focused;
    return focused && (focused == target || target->isAncestorOf(focused)) ? focused : target;
}

} // namespace

ScriptHost::ScriptHost(QJSEngine &engine, SuiteWindow &suite, const QString &scriptFolder, QObject *parent)
    : QObject(parent)
    , m_engine(engine)
    , m_suite(suite)
    , m_scriptFolder(scriptFolder)
    , m_installed(&m_prompter)
{
    qApp->installEventFilter(this);
}

void ScriptHost::onNextDialog(const QJSValue &handler)
{
    m_dialogHandler = handler;
}

bool ScriptHost::eventFilter(QObject *watched, QEvent *event)
{
    auto *dialog = qobject_cast<QDialog *>(watched);
    if (event->type() != QEvent::Show || !dialog || !dialog->isModal())
        return false;
    const QJSValue handler = m_dialogHandler;
    m_dialogHandler = QJSValue();
    QPointer<QDialog> shown(dialog);
    QTimer::singleShot(0, this, [this, shown, handler] {
        if (!shown)
            return;
        if (!handler.isCallable()) {
            m_pendingError = QStringLiteral("a dialog opened without a handler: %1").arg(shown->objectName());
            shown->reject();
            return;
        }
        const QJSValue wrapped = m_engine.globalObject().property(QStringLiteral("__wrapControl")).call(
            {m_engine.newQObject(shown.data())});
        QJSEngine::setObjectOwnership(shown.data(), QJSEngine::CppOwnership);
        const QJSValue result = QJSValue(handler).call({wrapped});
        if (result.isError()) {
            m_pendingError = result.toString();
            if (shown)
                shown->reject();
            return;
        }
        // A handler that leaves its dialog open would keep the script waiting for a person.
        if (shown && shown->isVisible()) {
            m_pendingError = QStringLiteral("the dialog handler left the dialog open: %1").arg(shown->objectName());
            shown->reject();
        }
    });
    return false;
}

QJSValue ScriptHost::raise(const QString &message)
{
    m_engine.throwError(QJSValue::GenericError, message);
    return {};
}

QJSValue ScriptHost::createObject(const QString &progId)
{
    try {
        QObject *object = CreateObject(progId).release();
        QJSValue wrapped = m_engine.newQObject(object);
        const char *wrapper = qobject_cast<QWidget *>(object) ? "__wrapControl" : "__wrapService";
        return m_engine.globalObject().property(QString::fromLatin1(wrapper)).call({wrapped});
    } catch (const LumoError &error) {
        return raise(error.description());
    }
}

QJSValue ScriptHost::openControl(const QString &progId)
{
    QWidget *control = m_suite.openControl(progId);
    if (!control)
        return raise(QStringLiteral("控件没有打开：%1").arg(progId));
    QJSEngine::setObjectOwnership(control, QJSEngine::CppOwnership);
    return m_engine.globalObject().property(QStringLiteral("__wrapControl")).call({m_engine.newQObject(control)});
}

bool ScriptHost::closeControl(const QJSValue &control)
{
    ControlFrame *frame = m_suite.frameOf(qobject_cast<QWidget *>(objectOf(control)));
    return frame && frame->close();
}

QJSValue ScriptHost::invoke(const QJSValue &target, const QJSValue &memberIdOrName, const QJSValue &args)
{
    QObject *object = objectOf(target);
    QVariantList list;
    const int length = args.property(QStringLiteral("length")).toInt();
    for (int i = 0; i < length; ++i)
        list.append(fromScript(args.property(quint32(i))));
    try {
        const QVariant member = memberIdOrName.isNumber() ? QVariant(quint32(memberIdOrName.toUInt()))
                                                          : QVariant(memberIdOrName.toString());
        const QVariant result = Dispatch::invoke(object, member, list);
        if (QObject *returned = result.value<QObject *>()) {
            QJSValue wrapped = m_engine.newQObject(returned);
            return m_engine.globalObject().property(QStringLiteral("__wrapService")).call({wrapped});
        }
        return m_engine.toScriptValue(result);
    } catch (const LumoError &error) {
        return raise(error.description());
    }
}

bool ScriptHost::command(const QJSValue &target, const QString &key)
{
    QObject *control = objectOf(target);
    auto *bars = control ? control->findChild<BarList *>(QStringLiteral("BarList")) : nullptr;
    return bars && bars->Click(key);
}

bool ScriptHost::press(const QString &key)
{
    return m_suite.pressHostKey(key);
}

QJSValue ScriptHost::child(const QJSValue &parent, const QString &name)
{
    QObject *object = objectOf(parent);
    QObject *found = object ? object->findChild<QObject *>(name) : nullptr;
    if (!found)
        return QJSValue(QJSValue::NullValue);
    QJSEngine::setObjectOwnership(found, QJSEngine::CppOwnership);
    const char *wrapper = qobject_cast<QWidget *>(found) ? "__wrapControl" : "__wrapService";
    return m_engine.globalObject().property(QString::fromLatin1(wrapper)).call({m_engine.newQObject(found)});
}

void ScriptHost::answer(const QString &text)
{
    try {
        m_prompter.queueAnswer(Prompter::answerFromName(text));
    } catch (const std::invalid_argument &) {
        raise(QStringLiteral("未知的回答：%1（可用 Yes、No、OK、Cancel）").arg(text));
    }
}

QJSValue ScriptHost::messages() const
{
    QJSValue list = m_engine.newArray(quint32(m_prompter.messages().size()));
    quint32 i = 0;
    for (const Prompter::Message &message : m_prompter.messages()) {
        QJSValue entry = m_engine.newObject();
        entry.setProperty(QStringLiteral("caption"), message.caption);
        entry.setProperty(QStringLiteral("text"), message.text);
        entry.setProperty(QStringLiteral("buttons"), Prompter::buttonsName(message.buttons));
        entry.setProperty(QStringLiteral("icon"), Prompter::iconName(message.icon));
        list.setProperty(i++, entry);
    }
    return list;
}

void ScriptHost::clearMessages()
{
    m_prompter.clear();
}

bool ScriptHost::screenshot(const QString &path, const QJSValue &target)
{
    processEvents();
    QWidget *widget = &m_suite;
    if (!target.isUndefined() && !target.isNull()) {
        widget = qobject_cast<QWidget *>(objectOf(target));
        if (!widget) {
            raise(QStringLiteral("截图的对象不是窗口部件：%1").arg(path));
            return false;
        }
    }
    const QFileInfo info(path);
    QDir().mkpath(info.absolutePath());
    return widget->grab().save(path);
}

void ScriptHost::processEvents()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

void ScriptHost::keys(const QJSValue &target, const QString &keys)
{
    QList<KeyScript::Stroke> strokes;
    try {
        strokes = KeyScript::parse(keys);
    } catch (const std::invalid_argument &error) {
        raise(QStringLiteral("按键写法不对：%1").arg(QString::fromStdString(error.what())));
        return;
    }
    QPointer<QWidget> widget;
    if (!target.isNull() && !target.isUndefined()) {
        widget = qobject_cast<QWidget *>(objectOf(target));
        if (!widget) {
            raise(QStringLiteral("按键的对象不是窗口部件：%1").arg(keys));
            return;
        }
        // A widget given the keys takes the focus first, as a person clicks before typing.
        if (!widget->hasFocus() && !widget->isAncestorOf(widget->window()->focusWidget()))
            widget->setFocus(Qt::OtherFocusReason);
    }
    for (const KeyScript::Stroke &stroke : std::as_const(strokes)) {
        QWidget *receiver = keyReceiver(widget);
        if (!receiver) {
            raise(QStringLiteral("没有窗口部件有焦点，按键无处可去：%1").arg(keys));
            return;
        }
        QTest::sendKeyEvent(QTest::Press, receiver, stroke.key, stroke.text, stroke.modifiers);
        processEvents();
        // The press may have closed the receiver (Esc in an editor).
        if (QWidget *after = keyReceiver(widget))
            QTest::sendKeyEvent(QTest::Release, after, stroke.key, stroke.text, stroke.modifiers);
        processEvents();
    }
}

QString ScriptHost::clipboard() const
{
    return QApplication::clipboard()->text();
}

void ScriptHost::setClipboard(const QString &text)
{
    QApplication::clipboard()->setText(text);
}

void ScriptHost::showMessageBoxes(bool on)
{
    Prompter::install(on ? nullptr : &m_prompter);
}

QStringList ScriptHost::buttons(const QJSValue &dialog) const
{
    QStringList texts;
    if (QObject *object = objectOf(dialog)) {
        for (const QAbstractButton *button : object->findChildren<QAbstractButton *>()) {
            if (button->isVisible())
                texts.append(withoutMnemonic(button->text()));
        }
    }
    return texts;
}

bool ScriptHost::clickButton(const QJSValue &dialog, const QString &text)
{
    QObject *object = objectOf(dialog);
    if (!object)
        return false;
    for (QAbstractButton *button : object->findChildren<QAbstractButton *>()) {
        if (button->isVisible() && withoutMnemonic(button->text()) == text) {
            button->click();
            return true;
        }
    }
    return false;
}

void ScriptHost::exit(int code)
{
    m_exitRequested = true;
    m_exitCode = code;
    m_engine.setInterrupted(true);
}

QString ScriptHost::propsString() const
{
    try {
        const std::unique_ptr<QObject> share = CreateObject(ProgId::ShareProps);
        return Dispatch::call(share.get(), QStringLiteral("GetProperty"),
                              {qint32(QCoreApplication::applicationPid()), QStringLiteral("PropsString")})
            .toString();
    } catch (const LumoError &) {
        return {};
    }
}

void ScriptHost::include(const QString &file)
{
    const QString path = QDir(m_scriptFolder).filePath(file);
    QFile in(path);
    if (!in.open(QIODevice::ReadOnly)) {
        raise(QStringLiteral("脚本文件读不到：%1").arg(path));
        return;
    }
    const QJSValue result = m_engine.evaluate(QString::fromUtf8(in.readAll()), path);
    if (result.isError())
        raise(QStringLiteral("%1:%2: %3").arg(path).arg(result.property(QStringLiteral("lineNumber")).toInt()).arg(result.toString()));
}

void ScriptHost::print(const QString &line)
{
    std::fprintf(stdout, "%s\n", line.toUtf8().constData());
    std::fflush(stdout);
}

int runScript(const QString &file, SuiteWindow &suite)
{
    QFile in(file);
    if (!in.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "lumo-suite: cannot read %s\n", qPrintable(file));
        return 2;
    }
    const QString source = QString::fromUtf8(in.readAll());

    QJSEngine engine;
    engine.installExtensions(QJSEngine::ConsoleExtension);
    ScriptHost host(engine, suite, QFileInfo(file).absolutePath());
    QJSEngine::setObjectOwnership(&host, QJSEngine::CppOwnership);
    const QJSValue hostValue = engine.newQObject(&host);
    engine.globalObject().setProperty(QStringLiteral("host"), hostValue);
    // The engine of Qt 6.4 has no globalThis, so the prelude is handed the global object.
    engine.evaluate(QString::fromUtf8(prelude)).call({hostValue, engine.globalObject()});

    const QJSValue result = engine.evaluate(source, file);
    if (!host.pendingError().isEmpty()) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(file), qPrintable(host.pendingError()));
        return 1;
    }
    if (host.exitRequested())
        return host.exitCode();
    if (result.isError()) {
        // The error is often raised inside a helper (suite.js): the line named is the script's own
        // frame on the stack, and the whole stack follows.
        const QString stack = result.property(QStringLiteral("stack")).toString();
        int line = result.property(QStringLiteral("lineNumber")).toInt();
        const QString ownFrame = QUrl::fromLocalFile(QFileInfo(file).absoluteFilePath()).toString() + QLatin1Char(':');
        for (const QString &frame : stack.split(QLatin1Char('\n'))) {
            const qsizetype at = frame.indexOf(ownFrame);
            if (at >= 0)
                line = frame.mid(at + ownFrame.size()).toInt();
        }
        std::fprintf(stderr, "%s:%d: %s\n%s\n", qPrintable(file), line, qPrintable(result.toString()), qPrintable(stack));
        return 1;
    }
    return 0;
}
