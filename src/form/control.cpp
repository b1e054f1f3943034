#include "form/control.h"

namespace Hesperin {

namespace {

struct SplitName {
    QString base;
    int index = -1;
};

/// "Abilities(66)" gives base "Abilities" and index 66; a name without an index gives -1.
SplitName Split(const QString& name) {
    const qsizetype open = name.indexOf(u'(');
    if (open < 0 || !name.endsWith(u')'))
        return {name, -1};
    const QStringView digits = QStringView(name).mid(open + 1, name.size() - open - 2);
    bool isNumber = false;
    const int index = digits.toInt(&isNumber);
    const bool canonical = isNumber && index >= 0 && QString::number(index) == digits;
    return canonical ? SplitName{name.left(open), index} : SplitName{name, -1};
}

} // namespace

Control* ControlRegistry::Find(const QString& name) const {
    const SplitName wanted = Split(name);
    const QByteArray base = wanted.base.toLatin1();
    if (wanted.base != QLatin1String(base))
        return nullptr;
    for (Control* control : controls)
        if (control->HasName(QLatin1String(base), wanted.index))
            return control;
    return nullptr;
}

Control::Control(ControlRegistry& registry, const char* name, int index)
    : holder(registry), arrayName(name), arrayIndex(index) {
    registry.controls.push_back(this);
}

QString Control::Name() const {
    if (arrayIndex < 0)
        return arrayName;
    return arrayName + QLatin1Char('(') + QString::number(arrayIndex) + QLatin1Char(')');
}

void Control::SetEnabled(bool value) {
    Store(enabled, value, Property::Enabled);
}

void Control::SetVisible(bool value) {
    Store(visible, value, Property::Visible);
}

void Control::SetToolTip(const QString& value) {
    Store(toolTip, value, Property::ToolTip);
}

bool Control::Usable() const {
    for (const Control* control = this; control != nullptr; control = control->parent)
        if (!control->enabled || !control->visible)
            return false;
    return true;
}

QString Control::Shown() const {
    QString line = Content();
    line.replace(u'\\', QLatin1String("\\\\"));
    line.replace(u'\n', QLatin1String("\\n"));
    line.replace(u'\r', QLatin1String("\\r"));
    return line;
}

} // namespace Hesperin
