#pragma once

#include <QStringList>
#include <string>
#include <vector>

#include "cli/commands.h"

// One `service PANEL ACTION` as the command line gives it.
struct ServiceRequest {
    std::string port;
    std::string trace;   // --trace FILE: the serial traffic
    std::string panel;   // registers, calibration, band, crystal
    std::string action;  // e.g. read-eeprom
    std::vector<std::string> arguments;
    std::string output;  // -o FILE: the panel's text file of what was read
};

int runServiceAction(const GlobalOptions& global, const ServiceRequest& request);
