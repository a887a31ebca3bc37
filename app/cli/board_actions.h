#pragma once

#include "cli/service_actions.h"

// The board panels of `service`: hardware, volume and player, each read and written.
bool isBoardPanel(const std::string& panel);
int runBoardAction(const GlobalOptions& global, const ServiceRequest& request);
