#pragma once

#include "dialogs/colorsession.h"
#include "frame/lumoicinitial_global.h"

#include <QDialog>

#include <array>

class QFrame;

// The row-colour dialog ("颜色管理"): a sample and a chooser button per colour kind, the system
// defaults, OK and Cancel. OK stores the colours and repaints the open grids; OK reads true
// afterwards and colors() hands the collection to the opener.
class LUMOICINITIAL_EXPORT frmColorManager : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(int LVSColor READ LVSColor WRITE setLVSColor)
    Q_PROPERTY(int GVSColor READ GVSColor WRITE setGVSColor)
    Q_PROPERTY(bool OK READ OK)

public:
    Q_INVOKABLE explicit frmColorManager(QWidget *parent = nullptr);
    ~frmColorManager() override;

    int LVSColor() const { return m_lvsColor; }
    void setLVSColor(int rgb) { m_lvsColor = rgb; }
    int GVSColor() const { return m_gvsColor; }
    void setGVSColor(int rgb) { m_gvsColor = rgb; }
    bool OK() const { return m_ok; }

    // Reads the stored colours into the samples.
    Q_INVOKABLE void prepare();
    // prepare() and the modal loop; the dialog's result code.
    Q_INVOKABLE int ShowDialog();
    // The colour collection of the samples ("Lock", "BatMan", "Sum", "Find", "BalAdj"), kept by
    // the dialog.
    Q_INVOKABLE QObject *colors();

    ColorSession &session() { return m_session; }

private:
    void paintSamples();
    void chooseColor(int kind);
    void confirm();

    ColorSession m_session;
    std::array<QFrame *, ColorSession::KindCount> m_samples{};
    int m_lvsColor = 0;
    int m_gvsColor = 0;
    bool m_ok = false;
};
