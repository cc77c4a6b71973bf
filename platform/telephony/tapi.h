/* The phone's telephony API. Every function answers an int: 0 is success, anything else failure (the numbers of
 * handset/Status.h, or the backend's own). Outputs are written only on success; a null pointer is answered with
 * InvalidArgument (1), and a function with no telephone behind it with NotAvailable (2). GUI thread only. */
#pragma once

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** A duration. The caller owns the record and zeroes it before a query. */
typedef struct TAPI_CallTime {
    uint32_t hours;
    uint8_t minutes; /**< 0 to 59 */
    uint8_t seconds; /**< 0 to 59 */
} TAPI_CallTime;

/** The time of all calls since TAPI_CS_ResetCallTime(). */
int TAPI_CS_GetTotalCallTime(TAPI_CallTime *time);
/** Zeroes the time of all calls and nothing else. */
int TAPI_CS_ResetCallTime(void);

/** The time of the last connected call. */
int TAPI_LOG_GetLastCallTime(TAPI_CallTime *time);
/** The time of all dialed calls since their last reset. */
int TAPI_LOG_GetDialedCallsTime(TAPI_CallTime *time);
/** The time of all answered calls since their last reset. */
int TAPI_LOG_GetAnsweredCallsTime(TAPI_CallTime *time);
/** The time of all calls ever; nothing resets it. */
int TAPI_LOG_GetLifetimeCallsTime(TAPI_CallTime *time);
/** Zeroes the time of all dialed calls and nothing else. */
int TAPI_LOG_ResetDialedCallsTime(void);
/** Zeroes the time of all answered calls and nothing else. */
int TAPI_LOG_ResetAnsweredCallsTime(void);
/** Zeroes every counter of the call log in one operation: last, dialed and answered calls. The lifetime total, the
 * time of all calls (the call service's) and that of the data calls stay. */
int TAPI_LOG_ResetAll(void);

#ifdef __cplusplus
}
#endif
