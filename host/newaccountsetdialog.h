#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;

// A new, empty account set: where it lives (a file or a postgresql:// URI) and the name its
// administrator logs in with. It stays open with the reason when the account set cannot be made.
class NewAccountSetDialog : public QDialog
{
    Q_OBJECT

public:
    explicit NewAccountSetDialog(QWidget *parent = nullptr);

    QString accountSet() const;
    QString administrator() const;

protected:
    void accept() override;

private:
    QLineEdit *m_accountSet;
    QLineEdit *m_administrator;
    QLabel *m_error;
};
