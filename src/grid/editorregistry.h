#pragma once

#include "grid/cellstyle.h"

#include <QVariant>

#include <array>
#include <functional>

class QWidget;

// How one cell type is edited: make the editor, put the cell's edit value into it, and read the
// person's input back out. The input goes through the cell model's edit path, which parses and
// checks it; an editor only has to hand over what was typed or picked.
struct CellEditorFactory
{
    std::function<QWidget *(QWidget *parent, const CellStyle &style)> create;
    std::function<void(QWidget *editor, const QVariant &editValue)> setValue;
    std::function<QVariant(const QWidget *editor)> value;

    bool isValid() const { return create && setValue && value; }
};

// Editor factories keyed by cell type. The standard registry edits text with a line edit,
// numbers with a right-aligned line edit that takes only number characters, dates with a line
// edit showing "yyyy-MM-dd" that takes the forms people type and lists with a drop-down list;
// button cells have no editor.
class EditorRegistry
{
public:
    static EditorRegistry standard();

    void setFactory(Grid::CellType type, CellEditorFactory factory);
    // nullptr for a type that is not edited.
    const CellEditorFactory *factory(Grid::CellType type) const;

private:
    std::array<CellEditorFactory, Grid::CellTypeCount> m_factories;
};
