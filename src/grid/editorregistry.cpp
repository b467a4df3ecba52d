#include "grid/editorregistry.h"

#include "grid/gridtypes.h"

#include <QComboBox>
#include <QDate>
#include <QLineEdit>
#include <QRegularExpressionValidator>

namespace {

CellEditorFactory lineEditFactory()
{
    return {
        [](QWidget *parent, const CellStyle &style) {
            auto *editor = new QLineEdit(parent);
            editor->setAlignment(style.alignment());
            editor->setFrame(false);
            return editor;
        },
        [](QWidget *editor, const QVariant &editValue) {
            static_cast<QLineEdit *>(editor)->setText(editValue.toString());
        },
        [](const QWidget *editor) { return QVariant(static_cast<const QLineEdit *>(editor)->text()); },
    };
}

CellEditorFactory numberFactory()
{
    CellEditorFactory factory = lineEditFactory();
    factory.create = [plain = factory.create](QWidget *parent, const CellStyle &style) {
        auto *editor = static_cast<QLineEdit *>(plain(parent, style));
        // Keeps letters out while typing; the limits are checked when the edit is committed.
        static const QRegularExpression numberCharacters(QStringLiteral("[+-]?[0-9,]*\\.?[0-9]*"));
        editor->setValidator(new QRegularExpressionValidator(numberCharacters, editor));
        return editor;
    };
    return factory;
}

// A date is typed as text ("2026-03-01", "2026/3/1", "20260301") and read by the cell's own
// parser: a sectioned date editor put the typed year into the day.
CellEditorFactory dateFactory()
{
    CellEditorFactory factory = lineEditFactory();
    factory.create = [plain = factory.create](QWidget *parent, const CellStyle &style) {
        auto *editor = static_cast<QLineEdit *>(plain(parent, style));
        static const QRegularExpression dateCharacters(QStringLiteral("[0-9/-]*"));
        editor->setValidator(new QRegularExpressionValidator(dateCharacters, editor));
        return editor;
    };
    factory.setValue = [](QWidget *editor, const QVariant &editValue) {
        const QDate date = editValue.toDate();
        static_cast<QLineEdit *>(editor)->setText(date.isValid() ? date.toString(QString::fromLatin1(Grid::DateFormat))
                                                                 : editValue.toString());
    };
    return factory;
}

CellEditorFactory listFactory()
{
    return {
        [](QWidget *parent, const CellStyle &style) {
            auto *editor = new QComboBox(parent);
            editor->addItems(style.comboList());
            return editor;
        },
        [](QWidget *editor, const QVariant &editValue) {
            auto *combo = static_cast<QComboBox *>(editor);
            combo->setCurrentIndex(combo->findText(editValue.toString()));
        },
        [](const QWidget *editor) { return QVariant(static_cast<const QComboBox *>(editor)->currentText()); },
    };
}

} // namespace

EditorRegistry EditorRegistry::standard()
{
    EditorRegistry registry;
    registry.setFactory(Grid::CellType::Text, lineEditFactory());
    registry.setFactory(Grid::CellType::Number, numberFactory());
    registry.setFactory(Grid::CellType::Date, dateFactory());
    registry.setFactory(Grid::CellType::List, listFactory());
    return registry;
}

void EditorRegistry::setFactory(Grid::CellType type, CellEditorFactory factory)
{
    m_factories[size_t(type)] = std::move(factory);
}

const CellEditorFactory *EditorRegistry::factory(Grid::CellType type) const
{
    const CellEditorFactory &found = m_factories[size_t(type)];
    return found.isValid() ? &found : nullptr;
}
