#include "dialogs/frmcolormanager.h"

#include "dialogs/dialogtexts.h"

#include "frame/logincontext.h"

#include "frame/automation/dictionary.h"

#include <QColorDialog>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int SampleWidth = 90;
constexpr int SampleHeight = 24;

QPushButton *button(const char *name, const QString &caption, QWidget *parent)
{
    auto *pushButton = new QPushButton(ResString(caption), parent);
    pushButton->setObjectName(QString::fromLatin1(name));
    return pushButton;
}

} // namespace

frmColorManager::frmColorManager(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmColorManager"));
    setWindowTitle(ResString(DialogMsg::ColorTitle));
    setModal(true);

    auto *kindsLayout = new QGridLayout;
    for (int kind = 0; kind < ColorSession::KindCount; ++kind) {
        const ColorKind &declared = ColorSession::kinds().at(size_t(kind));
        auto *sample = new QFrame(this);
        sample->setObjectName(QString::fromLatin1(declared.sampleName));
        sample->setFrameShape(QFrame::Box);
        sample->setFixedSize(SampleWidth, SampleHeight);
        sample->setAutoFillBackground(true);
        m_samples[size_t(kind)] = sample;
        QPushButton *chooser = button(declared.buttonName, declared.caption, this);
        connect(chooser, &QPushButton::clicked, this, [this, kind] { chooseColor(kind); });
        kindsLayout->addWidget(sample, kind, 0);
        kindsLayout->addWidget(chooser, kind, 1);
    }
    QPushButton *system = button("cmdSystem", DialogMsg::SystemColors, this);
    QPushButton *ok = button("cmdOK", DialogMsg::OkButton, this);
    QPushButton *cancel = button("cmdCancel", DialogMsg::CancelButton, this);
    ok->setDefault(true);
    connect(system, &QPushButton::clicked, this, [this] {
        m_session.restoreDefaults();
        paintSamples();
    });
    connect(ok, &QPushButton::clicked, this, &frmColorManager::confirm);
    connect(cancel, &QPushButton::clicked, this, [this] {
        m_ok = false;
        reject();
    });

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(system);
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(kindsLayout);
    layout->addLayout(buttons);
    paintSamples();
}

frmColorManager::~frmColorManager() = default;

void frmColorManager::prepare()
{
    m_ok = false;
    m_session.load();
    paintSamples();
}

int frmColorManager::ShowDialog()
{
    prepare();
    return exec();
}

QObject *frmColorManager::colors()
{
    Dictionary *collection = m_session.collection().release();
    collection->setParent(this);
    return collection;
}

void frmColorManager::paintSamples()
{
    for (int kind = 0; kind < ColorSession::KindCount; ++kind) {
        QFrame *sample = m_samples.at(size_t(kind));
        QPalette palette = sample->palette();
        palette.setColor(QPalette::Window, m_session.color(kind));
        sample->setPalette(palette);
    }
}

void frmColorManager::chooseColor(int kind)
{
    QColorDialog chooser(m_session.color(kind), this);
    chooser.setObjectName(QStringLiteral("cdgColor"));
    chooser.setWindowTitle(ResString(ColorSession::kinds().at(size_t(kind)).caption));
    // Closing the chooser without a choice keeps the colour.
    if (chooser.exec() != QDialog::Accepted)
        return;
    m_session.setColor(kind, chooser.selectedColor());
    paintSamples();
}

void frmColorManager::confirm()
{
    m_ok = true;
    m_session.store();
    accept();
}
