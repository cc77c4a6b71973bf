/* The phone's utility calls about circuit-switched data calls. Results and errors as in tapi.h. */
#pragma once

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** The time of all data calls since the last reset, in whole seconds, 0 to 4294967295 (where it saturates), the running one
 * included. */
int UTIL_GetTotalDuration(uint32_t *seconds);

/** The data-call status byte: 0 none, 1 being set up, 2 released, 3 connected. Any other byte is passed on as the
 * handset has it. */
int UTIL_GetDataCallStaus(uint8_t *status);

#ifdef __cplusplus
}
#endif
