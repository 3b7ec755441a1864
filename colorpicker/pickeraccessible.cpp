#include "colorpicker/pickeraccessible.h"

#include "colorpicker/colorsample.h"
#include "colorpicker/hselector.h"
#include "colorpicker/svselector.h"

#include <QAccessibleWidget>
#include <QCoreApplication>

#include <algorithm>

namespace {

/// What the strip's arrow stands at; a grey has no hue.
int shownHue(const ColorWidget &strip)
{
    return std::max(strip.hue(), 0);
}

class HueAccessible final : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit HueAccessible(HSelector *selector)
        : QAccessibleWidget(selector, QAccessible::Slider)
        , strip(selector)
    {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface) {
            return static_cast<QAccessibleValueInterface *>(this);
        }
        return QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override { return shownHue(*strip); }
    void setCurrentValue(const QVariant &value) override { strip->chooseHue(value.toInt()); }
    QVariant maximumValue() const override { return PickerGeometry::hueRange; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

private:
    HSelector *strip;
};

class SquareAccessible final : public QAccessibleWidget
{
public:
    explicit SquareAccessible(SVSelector *selector)
        : QAccessibleWidget(selector, QAccessible::ColorChooser)
        , square(selector)
    {}

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Description) {
            return QCoreApplication::translate("MainWindow", "Saturation %1, value %2")
                .arg(square->saturation())
                .arg(square->value());
        }
        return QAccessibleWidget::text(kind);
    }

private:
    SVSelector *square;
};

class SampleAccessible final : public QAccessibleWidget
{
public:
    explicit SampleAccessible(ColorSample *swatch)
        : QAccessibleWidget(swatch, QAccessible::Button)
        , sample(swatch)
    {}

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Description ? sample->color().name()
                                                : QAccessibleWidget::text(kind);
    }
    QStringList actionNames() const override
    {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString &name) override
    {
        if (name == pressAction()) {
            sample->press();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    ColorSample *sample;
};

QAccessibleInterface *accessibleFor(const QString & /*className*/, QObject *object)
{
    if (auto *const strip = qobject_cast<HSelector *>(object)) {
        return new HueAccessible(strip);
    }
    if (auto *const square = qobject_cast<SVSelector *>(object)) {
        return new SquareAccessible(square);
    }
    if (auto *const sample = qobject_cast<ColorSample *>(object)) {
        return new SampleAccessible(sample);
    }
    return nullptr;
}

} // namespace

void PickerAccessible::install()
{
    QAccessible::installFactory(accessibleFor); // which takes each once
}

void PickerAccessible::announceChange(ColorWidget &widget)
{
    if (qobject_cast<HSelector *>(&widget)) {
        QAccessibleValueChangeEvent event(&widget, shownHue(widget));
        QAccessible::updateAccessibility(&event);
    } else {
        QAccessibleEvent event(&widget, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&event);
    }
}
