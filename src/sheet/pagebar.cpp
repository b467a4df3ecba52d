#include "pagebar.h"

#include "frame/logincontext.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <QToolButton>

PageBar::PageBar(QWidget *parent)
    : QWidget(parent)
    , m_label(new QLabel(QStringLiteral("0/0"), this))
    , m_pageBox(new QSpinBox(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 2, 6, 2);
    layout->addStretch(1);
    const auto addButton = [this, layout](const QString &key, const QString &caption) {
        auto *button = new QToolButton(this);
        button->setObjectName(key);
        button->setText(ResString(caption));
        button->setAutoRaise(true);
        connect(button, &QToolButton::clicked, this, [this, key] { emit pageCommand(key); });
        layout->addWidget(button);
    };
    addButton(FirstPage, QStringLiteral("首页"));
    addButton(PreviousPage, QStringLiteral("上页"));
    m_label->setObjectName(QStringLiteral("lblPage"));
    m_label->setMinimumWidth(60);
    m_label->setAlignment(Qt::AlignCenter);
    layout->addWidget(m_label);
    addButton(NextPage, QStringLiteral("下页"));
    addButton(LastPage, QStringLiteral("末页"));
    m_pageBox->setObjectName(QStringLiteral("txtPage"));
    m_pageBox->setRange(1, 1);
    layout->addWidget(new QLabel(ResString(QStringLiteral("第")), this));
    layout->addWidget(m_pageBox);
    layout->addWidget(new QLabel(ResString(QStringLiteral("页")), this));
    addButton(SearchPage, QStringLiteral("转到"));
    connect(m_pageBox, &QSpinBox::editingFinished, this, [this] {
        if (m_pageBox->hasFocus())
            emit pageCommand(SearchPage);
    });
    setPages(0, 0);
}

void PageBar::setPages(int pageIndex, int totalPages)
{
    m_label->setText(QStringLiteral("%1/%2").arg(pageIndex).arg(totalPages));
    m_pageBox->setRange(totalPages > 0 ? 1 : 0, qMax(totalPages, 0));
    m_pageBox->setValue(pageIndex);
    for (const QString &key : {FirstPage, PreviousPage})
        findChild<QToolButton *>(key)->setEnabled(pageIndex > 1);
    for (const QString &key : {NextPage, LastPage})
        findChild<QToolButton *>(key)->setEnabled(pageIndex < totalPages);
    // Without pages there is nowhere to go.
    m_pageBox->setEnabled(totalPages > 0);
    findChild<QToolButton *>(SearchPage)->setEnabled(totalPages > 0);
}

int PageBar::typedPage() const
{
    return m_pageBox->value();
}

void PageBar::setTypedPage(int page)
{
    m_pageBox->setValue(page);
}

QString PageBar::label() const
{
    return m_label->text();
}
