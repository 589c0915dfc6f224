// The monitoring's part of kel_sim.h.
#include "SimulatedVehicle.h"

#include <kel_sim.h>

extern "C" {

int32_t kelsim_savePduMonitor(uint64_t handle, uint64_t monitor, const wchar_t* name) {
    namespace Reference = Varno::Kel_cpp::Reference;
    const auto vehicle = Reference::vehicleByHandle(handle);
    if (!vehicle) {
        return -1;
    }
    try {
        vehicle->monitoring->save(*vehicle, monitor, name != nullptr ? name : L"");
        return 0;
    } catch (const Varno::Kel_cpp::TarnApiException& e) {
        return e.code;
    }
}

} // extern "C"
