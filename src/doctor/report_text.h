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

QStringList probeLines(const ProbeReport& probe, UiLanguage language);
