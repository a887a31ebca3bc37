#include "doctor/diagnosis.h"

#include <algorithm>

namespace {

void add(QList<Fix>& fixes, Fix fix) {
    if (!fixes.contains(fix)) fixes << fix;
}

QList<Fix> fixesFor(const Diagnosis& diagnosis) {
    QList<Fix> fixes;
    if (diagnosis.devices.isEmpty()) add(fixes, {Fix::PlugInCable, {}});
    for (const SerialDeviceReport& device : diagnosis.devices) {
        switch (device.access) {
            case SerialDeviceReport::Access::NotInGroup:
                add(fixes, {Fix::JoinGroup, device.group});
                break;
            case SerialDeviceReport::Access::NeedsRelogin:
                add(fixes, {Fix::LogInAgain, device.group});
                break;
            case SerialDeviceReport::Access::ModeTooTight:
                add(fixes, {diagnosis.helpers.udevRule.isEmpty() ? Fix::InstallUdevRule
                                                                 : Fix::ReloadUdevRule,
                            {}});
                break;
            default:
                break;
        }
        for (const PortHolder& holder : device.holders) {
            if (holder.stale()) {
                add(fixes, {Fix::RemoveStaleLock, holder.lockFile});
            } else {
                add(fixes, {Fix::CloseHolder,
                            QStringLiteral("%1 (%2)").arg(holder.command).arg(holder.pid)});
            }
        }
    }
    for (const SerialDeviceReport& device : diagnosis.devices) {
        if (!device.brlttyMayGrab) continue;
        for (const QString& rule : diagnosis.helpers.brlttyRules) {
            add(fixes, {Fix::MaskBrltty, rule.section(QLatin1Char('/'), -1)});
        }
    }
    for (const SerialDeviceReport& device : diagnosis.devices) {
        if (!device.modemManagerMayProbe) continue;
        add(fixes,
            {diagnosis.helpers.udevRule.isEmpty() ? Fix::InstallUdevRule : Fix::ReloadUdevRule,
             {}});
    }
    for (const SerialDeviceReport& device : diagnosis.devices) {
        if (device.chip.counterfeitProne) add(fixes, {Fix::ReplaceAdapter, device.path});
    }
    return fixes;
}

}  // namespace

Diagnosis diagnose(const SystemFacts& facts, const QStringList& extraDevices) {
    Diagnosis diagnosis;
    const UserIdentity user = currentUser(facts);
    const QList<ProcessInfo> processes = runningProcesses(facts);
    diagnosis.userName = user.name;
    diagnosis.helpers = HelperServices::of(facts, processes);
    QStringList paths = serialDevicePaths(facts);
    for (const QString& extra : extraDevices) {
        // A /dev/serial/by-id name is the device it leads to, not one more device.
        const QString resolved = facts.canonicalPath(extra);
        const QString path = resolved.isEmpty() ? extra : resolved;
        if (!paths.contains(path)) paths << path;
    }
    for (const QString& path : paths) {
        diagnosis.devices << describeDevice(facts, path, user, processes, diagnosis.helpers);
    }
    diagnosis.fixes = fixesFor(diagnosis);
    return diagnosis;
}
