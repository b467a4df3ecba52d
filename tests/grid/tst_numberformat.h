#pragma once

#include <QObject>

class TestNumberFormat : public QObject
{
    Q_OBJECT
private slots:
    void format_data();
    void format();
    void pattern_data();
    void pattern();
    void roundHalfAway_data();
    void roundHalfAway();
    void parse_data();
    void parse();
    void plainText_data();
    void plainText();
};
