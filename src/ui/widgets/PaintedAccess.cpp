#include "ui/widgets/PaintedAccess.h"

#include <QAccessibleWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto RoleProperty = "accessibleRole";

class PaintedAccess final : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    PaintedAccess(QWidget *widget, QAccessible::Role role)
        : QAccessibleWidget(widget, role)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface && role() == QAccessible::ProgressBar)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override
    {
        return widget()->accessibleDescription().section(u' ', 0, 0).toInt();
    }
    void setCurrentValue(const QVariant &) override {}
    QVariant maximumValue() const override { return 100; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }
};

QAccessibleInterface *MakePaintedAccess(const QString &, QObject *object)
{
    const QVariant role = object->property(RoleProperty);
    auto *widget = qobject_cast<QWidget *>(object);
    return role.isValid() && widget ? new PaintedAccess(widget, static_cast<QAccessible::Role>(role.toInt()))
                                    : nullptr;
}

} // namespace

void Public_Function::SetAccessibleRole(QWidget *widget, QAccessible::Role role)
{
    static const bool installed = (QAccessible::installFactory(MakePaintedAccess), true);
    Q_UNUSED(installed)
    widget->setProperty(RoleProperty, static_cast<int>(role));
}
