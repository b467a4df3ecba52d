#pragma once

#include "automation_global.h"

#include <QObject>
#include <QStringList>
#include <QVariant>
#include <QVector>

// Scripts read the end of the rows as "EOF", the C library's macro of that name is kept out of
// the meta-object compiler's view.
#ifdef Q_MOC_RUN
#undef EOF
#endif

// Materialized result rows with fields by name (without regard to case) and a cursor, the shape
// every data-service member answers in. Nulls are explicit: a null QVariant.
class LUMOAUTOMATION_EXPORT Recordset : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int RecordCount READ RecordCount)
    Q_PROPERTY(int FieldCount READ FieldCount)
    Q_PROPERTY(bool EOF READ atEnd)
    Q_PROPERTY(bool BOF READ atStart)
    Q_PROPERTY(int AbsolutePosition READ AbsolutePosition WRITE setAbsolutePosition)
    Q_PROPERTY(QString Sort READ Sort WRITE setSort)

public:
    explicit Recordset(const QStringList &fields = {}, QObject *parent = nullptr);

    // Building.
    void setFields(const QStringList &fields);
    void reserve(int rows);
    void appendRow(QVector<QVariant> row);

    // Reading without the cursor.
    const QStringList &fieldNames() const { return m_fields; }
    int fieldIndex(const QString &name) const;
    QVariant value(int row, int field) const;
    QVariant value(int row, const QString &field) const;

    // The cursor, as scripts and the controls walk it.
    int RecordCount() const { return int(m_order.size()); }
    int FieldCount() const { return int(m_fields.size()); }
    bool atEnd() const;
    bool atStart() const;
    int AbsolutePosition() const { return m_position + 1; }
    void setAbsolutePosition(int position);
    Q_INVOKABLE void MoveFirst();
    Q_INVOKABLE void MoveNext();
    Q_INVOKABLE void MovePrevious();
    Q_INVOKABLE void MoveLast();
    // The current row's value of a field given by name or by index; an unknown field is an error.
    Q_INVOKABLE QVariant Fields(const QVariant &nameOrIndex) const;
    Q_INVOKABLE QString FieldName(int index) const;

    // "FNumber", "FNumber DESC, FName": reorders the rows (stable) and moves to the first.
    QString Sort() const { return m_sort; }
    void setSort(const QString &sort);

private:
    int resolveField(const QVariant &nameOrIndex) const;
    int currentRow() const;

    QStringList m_fields;
    QHash<QString, int> m_fieldIndex; // lower-case name -> index
    // The names as the fields were declared: the usual spelling of a look-up finds its field
    // without lower-casing the name, which a grid fill would otherwise do a million times.
    QHash<QString, int> m_declaredIndex;
    QVector<QVector<QVariant>> m_rows;
    QVector<int> m_order;              // row order after sorting
    int m_position = 0;
    QString m_sort;
};
