#pragma once

#include "platform/DeviceFacts.h"

// The machine as Linux describes it: the model from the firmware's DMI tables, else from the
// device tree (boards without DMI), else SIMULATOR_MODEL_IDENTIFIER, else uname's machine.
class FreedesktopDeviceFacts final : public DeviceFacts {
public:
    struct Sources {
        QString dmiProductName = QStringLiteral("/sys/class/dmi/id/product_name");
        QString deviceTreeModel = QStringLiteral("/proc/device-tree/model");
    };

    FreedesktopDeviceFacts() = default;
    explicit FreedesktopDeviceFacts(Sources sources) : m_sources(std::move(sources)) {}

    QString osName() const override { return QStringLiteral("Linux"); }
    QString osVersion() const override;
    QString deviceModel() const override;

private:
    Sources m_sources;
};
