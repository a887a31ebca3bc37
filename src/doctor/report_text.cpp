#include "doctor/report_text.h"

#include "l10n/doctor_texts.h"

namespace {

using l10n::DoctorText;
namespace commands = l10n::commands;

class Writer {
public:
    explicit Writer(UiLanguage language) : language_(language) {}

    QString text(DoctorText id) const { return l10n::doctorText(id, language_); }
    void line(int indent, const QString& text) {
        lines_ << QString(indent, QLatin1Char(' ')) + text;
    }
    void line(int indent, DoctorText id) { line(indent, text(id)); }
    void command(const char* command, const QString& subject = {}) {
        QString text = QString::fromUtf8(command);
        if (text.contains(QLatin1String("%1"))) text = text.arg(subject);
        line(7, text);
    }
    QStringList lines() const { return lines_; }

private:
    UiLanguage language_;
    QStringList lines_;
};

QString octal(unsigned mode) {
    return QStringLiteral("%1").arg(mode, 4, 8, QLatin1Char('0'));
}

void writeDevice(Writer& out, const SerialDeviceReport& device) {
    out.line(0, device.path);
    if (!device.byId.isEmpty()) out.line(2, out.text(DoctorText::StableName).arg(device.byId));
    if (device.isUsb()) {
        const QString name =
            QStringList{device.manufacturer, device.product}.join(QLatin1Char(' '));
        out.line(2,
                 out.text(DoctorText::UsbDevice)
                     .arg(device.vendorId + QLatin1Char(':') + device.productId, name.trimmed()));
    } else {
        out.line(2, DoctorText::NotUsb);
    }
    if (device.chip.family != UsbChip::Unknown) {
        out.line(2, out.text(DoctorText::Chip).arg(familyName(device.chip.family)));
    }
    if (!device.driver.isEmpty()) out.line(2, out.text(DoctorText::Driver).arg(device.driver));
    using Access = SerialDeviceReport::Access;
    switch (device.access) {
        case Access::Granted:
            out.line(2, DoctorText::AccessGranted);
            break;
        case Access::Missing:
            out.line(2, DoctorText::AccessMissing);
            break;
        case Access::NotInGroup:
            out.line(2,
                     out.text(DoctorText::AccessNotInGroup).arg(device.group, octal(device.mode)));
            break;
        case Access::NeedsRelogin:
            out.line(2, out.text(DoctorText::AccessRelogin).arg(device.group));
            break;
        case Access::ModeTooTight:
            out.line(2,
                     out.text(DoctorText::AccessModeTight).arg(octal(device.mode), device.group));
            break;
    }
    for (const PortHolder& holder : device.holders) {
        out.line(2, holder.stale()
                        ? out.text(DoctorText::StaleLock).arg(holder.lockFile)
                        : out.text(DoctorText::HeldBy).arg(holder.command).arg(holder.pid));
    }
    if (device.brlttyMayGrab) out.line(2, DoctorText::BrlttyMayGrab);
    if (device.modemManagerMayProbe) out.line(2, DoctorText::ModemManagerMayProbe);
    if (device.chip.counterfeitProne) {
        out.line(2, out.text(DoctorText::Counterfeit)
                        .arg(device.vendorId + QLatin1Char(':') + device.productId));
    }
    if (device.usable() && !device.brlttyMayGrab && !device.modemManagerMayProbe) {
        out.line(2, DoctorText::Ready);
    }
}

QString stateOf(const Writer& out, bool installed, bool running) {
    if (running) return out.text(DoctorText::StateRunning);
    return out.text(installed ? DoctorText::StateInstalled : DoctorText::StateMissing);
}

void writeFix(Writer& out, int number, const Fix& fix) {
    const QString prefix = QStringLiteral("%1. ").arg(number, 2);
    auto heading = [&](DoctorText id, const QString& subject = {}) {
        QString text = out.text(id);
        if (text.contains(QLatin1String("%1"))) text = text.arg(subject);
        out.line(1, prefix + text);
    };
    switch (fix.kind) {
        case Fix::JoinGroup:
            heading(DoctorText::FixJoinGroup, fix.subject);
            out.command(commands::kJoinGroup, fix.subject);
            break;
        case Fix::LogInAgain:
            heading(DoctorText::FixLogInAgain, fix.subject);
            out.command(commands::kNewGroup, fix.subject);
            break;
        case Fix::InstallUdevRule:
            heading(DoctorText::FixInstallUdevRule);
            out.command(commands::kInstallUdevRule);
            out.command(commands::kReloadUdevRules);
            break;
        case Fix::ReloadUdevRule:
            heading(DoctorText::FixReloadUdevRule);
            out.command(commands::kReloadUdevRules);
            break;
        case Fix::CloseHolder:
            heading(DoctorText::FixCloseHolder, fix.subject);
            break;
        case Fix::RemoveStaleLock:
            heading(DoctorText::FixRemoveStaleLock);
            out.command(commands::kRemoveFile, fix.subject);
            break;
        case Fix::MaskBrltty:
            heading(DoctorText::FixMaskBrltty);
            out.command(commands::kMaskRule, fix.subject);
            out.command(commands::kMaskBrlttyService);
            out.command(commands::kStopBrltty);
            out.command(commands::kReloadUdevRules);
            break;
        case Fix::ReplaceAdapter:
            heading(DoctorText::FixReplaceAdapter, fix.subject);
            break;
        case Fix::PlugInCable:
            heading(DoctorText::FixPlugInCable);
            out.command(commands::kKernelLog);
            break;
    }
}

}  // namespace

QStringList diagnosisLines(const Diagnosis& diagnosis, UiLanguage language) {
    Writer out(language);
    out.line(0, out.text(DoctorText::Title).arg(diagnosis.userName));
    out.line(0, QString());
    if (diagnosis.devices.isEmpty()) out.line(0, DoctorText::NoDevices);
    for (const SerialDeviceReport& device : diagnosis.devices) {
        writeDevice(out, device);
        out.line(0, QString());
    }
    const HelperServices& helpers = diagnosis.helpers;
    out.line(0, DoctorText::HelpersHeading);
    out.line(2, out.text(DoctorText::Brltty)
                    .arg(stateOf(out, helpers.brlttyInstalled, helpers.brlttyRunning)));
    out.line(2, out.text(DoctorText::ModemManager)
                    .arg(stateOf(out, helpers.modemManagerInstalled, helpers.modemManagerRunning)));
    out.line(2, out.text(DoctorText::UdevRule)
                    .arg(helpers.udevRule.isEmpty() ? out.text(DoctorText::NotInstalled)
                                                    : helpers.udevRule));
    out.line(0, QString());
    out.line(0, DoctorText::FixesHeading);
    if (diagnosis.fixes.isEmpty()) out.line(2, DoctorText::NothingToFix);
    for (int i = 0; i < diagnosis.fixes.size(); ++i) writeFix(out, i + 1, diagnosis.fixes.at(i));
    return out.lines();
}

ProbeReport reportProbe(const QString& device, const RadioProbe& probe, const Diagnosis& diagnosis,
                        const SystemFacts& facts) {
    ProbeReport report;
    report.device = device;
    report.outcome = probe.outcome();
    report.answer = probe.answer();
    report.heard = probe.heard();
    report.portLostDetail = probe.portLostDetail();
    const QString resolved = facts.canonicalPath(device);
    const SerialDeviceReport* found = nullptr;
    for (const SerialDeviceReport& candidate : diagnosis.devices) {
        if (candidate.path == device || candidate.path == resolved) found = &candidate;
    }
    report.causes = probeCauses(report.outcome, PortOpenError::None, found,
                                static_cast<int>(diagnosis.devices.size()));
    return report;
}

ProbeReport reportUnopenedPort(const QString& device, const QString& detail) {
    ProbeReport report;
    report.device = device;
    report.openError = PortOpenError::Other;
    report.openErrorDetail = detail;
    report.causes = probeCauses(report.outcome, report.openError, nullptr, 0);
    return report;
}

QStringList probeLines(const ProbeReport& probe, UiLanguage language) {
    Writer out(language);
    out.line(0, out.text(DoctorText::ProbeHeading).arg(probe.device));
    if (probe.openError != PortOpenError::None) {
        out.line(2, out.text(DoctorText::ProbeNotOpened).arg(probe.openErrorDetail));
    } else {
        switch (probe.outcome) {
            case RadioProbe::Outcome::Answered:
                out.line(2, out.text(DoctorText::ProbeAnswered)
                                .arg(QString::fromLatin1(probe.answer.toHex(' '))));
                break;
            case RadioProbe::Outcome::Garbled:
                out.line(2, DoctorText::ProbeGarbled);
                break;
            case RadioProbe::Outcome::PortLost:
                out.line(2, out.text(DoctorText::ProbePortLost).arg(probe.portLostDetail));
                break;
            default:
                out.line(2, DoctorText::ProbeSilent);
                break;
        }
    }
    if (!probe.heard.isEmpty() && probe.outcome != RadioProbe::Outcome::Answered) {
        out.line(2, DoctorText::ProbeHeard);
        for (const QString& heard : probe.heard.mid(0, 5)) out.line(4, heard);
    }
    if (probe.causes.isEmpty()) return out.lines();
    out.line(2, DoctorText::CausesHeading);
    static const DoctorText kCauseTexts[] = {
        DoctorText::CausePortNotOpened,      DoctorText::CauseRadioOff,
        DoctorText::CausePlugNotSeated,      DoctorText::CauseWrongPort,
        DoctorText::CauseOtherProgram,       DoctorText::CauseBrltty,
        DoctorText::CauseModemManager,       DoctorText::CauseCounterfeit,
        DoctorText::CauseCableForOtherRadio,
    };
    for (int i = 0; i < probe.causes.size(); ++i) {
        out.line(3, QStringLiteral("%1. ").arg(i + 1) +
                        out.text(kCauseTexts[static_cast<int>(probe.causes.at(i))]));
    }
    return out.lines();
}
