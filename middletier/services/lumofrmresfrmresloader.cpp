#include "lumofrmresfrmresloader.h"

#include "frame/automation/dictionary.h"
#include "frame/automation/dispatch.h"

#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>

namespace {

const QString FormFontFamily = QStringLiteral("WenQuanYi Micro Hei");
constexpr int FormFontPointSize = 9;
const QString PrintFontName = QStringLiteral("宋体");
constexpr int PrintFontCharset = 134; // GB2312
constexpr int PrintFontSize = 9;
const QString ItemsMember = QStringLiteral("Items");
const char *FontProperty = "font";

QFont formFont()
{
    QFont font = QGuiApplication::font();
    if (QFontDatabase::families().contains(FormFontFamily, Qt::CaseInsensitive))
        font.setFamily(FormFontFamily);
    font.setPointSize(FormFontPointSize);
    return font;
}

// A form's own emphasis (a bigger, bold title) is part of its design: the language's font gives
// the family, and only widgets of the ordinary size take its size too.
void applyToWidget(QObject *widget, const QFont &font)
{
    QFont own = widget->property(FontProperty).value<QFont>();
    const bool ordinary = own.pointSizeF() == QGuiApplication::font().pointSizeF() && !own.bold();
    own.setFamily(font.family());
    if (ordinary)
        own.setPointSizeF(font.pointSizeF());
    widget->setProperty(FontProperty, own);
}

void applyToTree(QObject *root, const QFont &font)
{
    if (root->isWidgetType())
        applyToWidget(root, font);
    const QList<QObject *> descendants = root->findChildren<QObject *>();
    for (QObject *object : descendants) {
        if (object->isWidgetType())
            applyToWidget(object, font);
    }
}

} // namespace

LumoFrmResFrmResLoader::LumoFrmResFrmResLoader(QObject *parent)
    : QObject(parent)
{
}

void LumoFrmResFrmResLoader::SetFrmFont(QObject *controls, const QString &)
{
    if (!controls)
        return;
    const QFont font = formFont();
    if (!controls->isWidgetType() && Dispatch::hasMember(controls, ItemsMember)) {
        const QVariantList items = Dispatch::call(controls, ItemsMember).toList();
        for (const QVariant &item : items) {
            if (QObject *object = item.value<QObject *>())
                applyToTree(object, font);
        }
        return;
    }
    applyToTree(controls, font);
}

void LumoFrmResFrmResLoader::LoadFrmResStrings(QObject *, const QString &, const QString &, const QString &, QObject *)
{
}

QObject *LumoFrmResFrmResLoader::GetZ9FontProps(const QString &)
{
    auto props = std::make_unique<Dictionary>();
    props->setItem(QStringLiteral("Name"), PrintFontName);
    props->setItem(QStringLiteral("Charset"), PrintFontCharset);
    props->setItem(QStringLiteral("Size"), PrintFontSize);
    return props.release();
}
