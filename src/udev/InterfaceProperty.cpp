#include "udev/InterfaceProperty.h"

#include "device/ConfigurationInterface.h"
#include "platform/linux/FeatureReportSize.h"

namespace lumo {

std::string interfaceProperty(const std::string& syspath) {
    return isConfigurationInterface(featureReportSize(syspath + "/device")) ? "VEXA_LUMO_65_INTERFACE=configuration"
                                                                            : "VEXA_LUMO_65_INTERFACE=other";
}

}  // namespace lumo
