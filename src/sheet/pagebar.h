#pragma once

#include "frame/lumoicinitial_global.h"

#include <QWidget>

class QLabel;
class QSpinBox;

// The page commands under the entry grid: first, previous, next, last, and a page box with its
// "go" button; the label shows "3/12".
class LUMOICINITIAL_EXPORT PageBar : public QWidget
{
    Q_OBJECT

public:
    static inline const QString FirstPage = QStringLiteral("FIRSTPAGE");
    static inline const QString PreviousPage = QStringLiteral("PREPAGE");
    static inline const QString NextPage = QStringLiteral("NEXTPAGE");
    static inline const QString LastPage = QStringLiteral("LASTPAGE");
    static inline const QString SearchPage = QStringLiteral("SEARCHPAGE");

    explicit PageBar(QWidget *parent = nullptr);

    void setPages(int pageIndex, int totalPages);
    // The page number typed in the page box.
    Q_INVOKABLE int typedPage() const;
    Q_INVOKABLE void setTypedPage(int page);
    Q_INVOKABLE QString label() const;

signals:
    void pageCommand(const QString &key);

private:
    QLabel *m_label;
    QSpinBox *m_pageBox;
};
