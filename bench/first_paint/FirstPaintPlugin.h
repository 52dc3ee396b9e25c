// The way in: QT_QPA_GENERIC_PLUGINS=firstpaint has Qt load it into any program, LUMO_FIRST_PAINT names the
// file, if there is to be one.
#pragma once

#include <QGenericPlugin>

#include "first_paint/FirstPaint.h"

namespace lumo::bench {

class FirstPaintPlugin final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "firstpaint.json")

public:
    QObject* create(const QString&, const QString&) override {
        return new FirstPaint(qEnvironmentVariable("LUMO_FIRST_PAINT"));
    }
};

}  // namespace lumo::bench
