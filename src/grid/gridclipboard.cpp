#include "grid/gridclipboard.h"

#include "grid/cellmodel.h"

namespace GridClipboard {

QList<QStringList> parse(const QString &text)
{
    QString body = text;
    if (body.endsWith(QLatin1Char('\n')))
        body.chop(1);
    if (body.endsWith(QLatin1Char('\r')))
        body.chop(1);
    QList<QStringList> rows;
    if (body.isEmpty())
        return rows;
    for (QString line : body.split(QLatin1Char('\n'))) {
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
        rows.append(line.split(QLatin1Char('\t')));
    }
    return rows;
}

QString copyText(const CellModel &cells, int row1, int col1, int row2, int col2)
{
    QStringList lines;
    for (int r = row1; r <= row2; ++r) {
        if (cells.rowHidden(r))
            continue;
        QStringList line;
        for (int c = col1; c <= col2; ++c) {
            if (!cells.colHidden(c))
                line.append(cells.text(r, c));
        }
        lines.append(line.join(QLatin1Char('\t')));
    }
    return lines.join(QLatin1Char('\n'));
}

namespace {

// The shown rows (or columns) from `first` on, at most `count` of them.
template<typename Hidden>
QList<int> shown(int first, int end, qsizetype count, Hidden hidden)
{
    QList<int> out;
    for (int i = first; i < end && out.size() < count; ++i) {
        if (!hidden(i))
            out.append(i);
    }
    return out;
}

} // namespace

QList<QList<Target>> pasteTargets(const CellModel &cells, int row, int col, const QList<QStringList> &block)
{
    qsizetype width = 0;
    for (const QStringList &line : block)
        width = std::max(width, line.size());
    const QList<int> rows = shown(row, cells.rows(), block.size(), [&](int r) { return cells.rowHidden(r); });
    const QList<int> cols = shown(col, cells.cols(), width, [&](int c) { return cells.colHidden(c); });
    QList<QList<Target>> out;
    for (qsizetype i = 0; i < rows.size(); ++i) {
        QList<Target> targets;
        const QStringList &line = block.at(i);
        for (qsizetype j = 0; j < line.size() && j < cols.size(); ++j) {
            if (cells.isEditable(rows.at(i), cols.at(j)))
                targets.append({rows.at(i), cols.at(j), line.at(j)});
        }
        out.append(targets);
    }
    return out;
}

} // namespace GridClipboard
