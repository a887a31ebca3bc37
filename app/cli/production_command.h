#pragma once

#include <memory>

#include "cli/commands.h"
#include "cli/service_actions.h"

// Adds the production-line panels (id, test, monitor) to the `service` command; they share
// its --port and --trace.
void addProductionPanels(CLI::App* serviceCommand, const GlobalOptions& global, CommandRunner& run,
                         const std::shared_ptr<ServiceRequest>& service);
