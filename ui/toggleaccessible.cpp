#include "ui/toggleaccessible.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QRadioButton>

namespace {

class ClickedToggle final : public QAccessibleWidget
{
public:
    ClickedToggle(QAbstractButton *toggle, QAccessible::Role role)
        : QAccessibleWidget(toggle, role)
        , button(toggle)
    {}

    QString text(QAccessible::Text kind) const override
    {
        const QString given = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && given.isEmpty() ? button->text() : given;
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = button->isChecked();
        return state;
    }
    QStringList actionNames() const override
    {
        return QStringList(toggleAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString &name) override
    {
        if (name == toggleAction() || name == pressAction()) {
            button->click();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    QAbstractButton *button;
};

QAccessibleInterface *accessibleFor(const QString & /*className*/, QObject *object)
{
    if (auto *const box = qobject_cast<QCheckBox *>(object)) {
        return new ClickedToggle(box, QAccessible::CheckBox);
    }
    if (auto *const radio = qobject_cast<QRadioButton *>(object)) {
        return new ClickedToggle(radio, QAccessible::RadioButton);
    }
    return nullptr;
}

} // namespace

void ToggleAccessible::install()
{
    QAccessible::installFactory(accessibleFor);
}
