// The way in: QT_QPA_GENERIC_PLUGINS=turnprobe has Qt load it into any program, LUMO_TURN_PROBE names the file.
#pragma once

#include <QGenericPlugin>

#include "probe/TurnProbe.h"

namespace lumo::test {

class TurnProbePlugin final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "turnprobe.json")

public:
    QObject* create(const QString&, const QString&) override {
        return new TurnProbe(qEnvironmentVariable("LUMO_TURN_PROBE"));
    }
};

}  // namespace lumo::test
