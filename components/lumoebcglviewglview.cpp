#include "lumoebcglviewglview.h"

#include "itemlookupdialog.h"

#include "frame/automation/componentregistry.h"
#include "frame/automation/dictionary.h"
#include "frame/automation/dispatch.h"
#include "frame/automation/lumoerror.h"
#include "frame/automation/objectownership.h"
#include "frame/automation/progids.h"
#include "frame/automation/recordset.h"

#include <QWidget>

namespace {

const QString LookupItemsMember = QStringLiteral("LookupItems");
const QString ReturnOK = QStringLiteral("ReturnOK");
const QString Number = QStringLiteral("Number");
const QString NumberField = QStringLiteral("FNumber");

std::unique_ptr<Recordset> itemPage(const QString &condition, const QString &pattern, const QString &afterNumber,
                                    int afterId, int count)
{
    const std::unique_ptr<QObject> data = CreateObject(ProgId::GLData);
    auto page = takeObject<Recordset>(
        Dispatch::call(data.get(), LookupItemsMember, {condition, pattern, afterNumber, afterId, count}));
    return page ? std::move(page) : std::make_unique<Recordset>();
}

} // namespace

LumoEBCGLViewGLView::LumoEBCGLViewGLView(QObject *parent)
    : QObject(parent)
{
}

QObject *LumoEBCGLViewGLView::ItemLookUp(const QString &Condition, const QString &Pattern, const QString &Caption,
                                         QObject *Parent)
{
    // A condition the data service refuses is the caller's error, raised before anything opens.
    itemPage(Condition, {}, {}, 0, 1);
    // Once open, a page that can't be read ends the list instead of taking the dialog down.
    const ItemLookupModel::PageSource source = [Condition](const QString &pattern, const QString &afterNumber,
                                                           int afterId, int count) {
        try {
            return itemPage(Condition, pattern, afterNumber, afterId, count);
        } catch (const LumoError &) {
            return std::make_unique<Recordset>();
        }
    };
    ItemLookupDialog dialog(source, Pattern, Caption, qobject_cast<QWidget *>(Parent));
    auto result = std::make_unique<Dictionary>();
    const bool picked = dialog.exec() == QDialog::Accepted && !dialog.chosen().isEmpty();
    result->setItem(ReturnOK, picked);
    if (picked) {
        const QVariantMap item = dialog.chosen();
        result->setItem(Number, item.value(NumberField));
        for (auto it = item.cbegin(); it != item.cend(); ++it)
            result->setItem(it.key(), it.value());
    }
    return result.release();
}
