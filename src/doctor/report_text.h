#pragma once

#include <QStringList>

#include "doctor/diagnosis.h"
#include "doctor/radio_probe.h"
#include "l10n/language.h"

// The cable check as text, for a terminal or the desktop program's dialog: one section per
// serial device, the helpers, and the numbered fixes with the commands to type.
QStringList diagnosisLines(const Diagnosis& diagnosis, UiLanguage language);

// What the radio test found on `device`: its answer, or no answer and the likely causes.
struct ProbeReport {
    QString device;
    PortOpenError openError = PortOpenError::None;
    QString openErrorDetail;
    RadioProbe::Outcome outcome = RadioProbe::Outcome::NotRun;
    QByteArray answer;
    QStringList heard;
    QString portLostDetail;
    QList<ProbeCause> causes;
};

// The findings of a probe that has finished on `device` (as the user named it), with the
// likely causes from what the diagnosis knows of that device.
ProbeReport reportProbe(const QString& device, const RadioProbe& probe, const Diagnosis& diagnosis,
                        const SystemFacts& facts);
// The findings when the port did not open.
ProbeReport reportUnopenedPort(const QString& device, const QString& detail);

QStringList probeLines(const ProbeReport& probe, UiLanguage language);
