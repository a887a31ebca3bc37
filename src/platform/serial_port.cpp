#include "platform/serial_port.h"

int platformErrorNumber(PortOpenError error) {
    switch (error) {
        case PortOpenError::NoSuchPort:
            return 8002;
        case PortOpenError::PortInUse:
            return 8005;
        case PortOpenError::None:
        case PortOpenError::Other:
            break;
    }
    return 0;
}
