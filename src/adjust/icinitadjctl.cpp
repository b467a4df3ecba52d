#include "icinitadjctl.h"

#include "frame/barlist.h"
#include "frame/errorbox.h"
#include "frame/librarystate.h"
#include "frame/logincontext.h"
#include "frame/netcontrol.h"
#include "frame/sysparams.h"
#include "frame/viewtoggles.h"

#include "frame/automation/lumoerror.h"
#include "frame/automation/recordset.h"
#include "frame/automation/progids.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

const QString AdjustTitle = QStringLiteral("期初成本调整");
const QString ExitKey = QStringLiteral("mcExit");
const QString ResourceSet = QStringLiteral("ICInitAdjCtl");

} // namespace

ICInitAdjCtl::ICInitAdjCtl(QWidget *parent)
    : InitControl(parent)
    , m_title(new QLabel(this))
{
    setObjectName(QStringLiteral("ICInitAdjCtl"));
    m_title->setObjectName(QStringLiteral("lblTitle"));
    m_title->setAlignment(Qt::AlignCenter);
    QFont font = m_title->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    font.setBold(true);
    m_title->setFont(font);
    m_title->setText(ResString(AdjustTitle));
    bodyLayout()->addWidget(m_title);
    bodyLayout()->addStretch(1);

    BarList::Item exit;
    exit.key = ExitKey;
    exit.caption = ResString(QStringLiteral("退出"));
    exit.menu = ResString(QStringLiteral("文件(&F)"));
    barList()->addItem(exit);
    addViewToggles();
    // The default warehouse opens in the entry control only; the setting is kept, not offered.
    const QString defaultStock = QString::fromLatin1(ViewToggleKey::DefaultStock);
    barList()->setVisible(defaultStock, false);
    barList()->setEnabled(defaultStock, false);
}

ICInitAdjCtl::~ICInitAdjCtl() = default;

void ICInitAdjCtl::SetOperator(int oID, const QString &oName)
{
    LibraryState::instance().operatorId = oID;
    LibraryState::instance().operatorName = oName;
}

bool ICInitAdjCtl::Show(QObject *ParentWnd, bool blnIstest)
{
    return showControl(ParentWnd, blnIstest, ProgId::MICInitialDataAdj);
}

void ICInitAdjCtl::prepareShow()
{
    LoadFormStrings(this, m_formOptions, ResourceSet);
}

QObject *ICInitAdjCtl::SetSystemFontName()
{
    return GetFontProps().release();
}

void ICInitAdjCtl::runCommand(const QString &key)
{
    if (key == ExitKey)
        closeHostFrame();
    else if (viewToggleForKey(key))
        toggleView(key);
}
