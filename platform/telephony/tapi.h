/* The phone's telephony API. Every function returns an int: 0 is success, anything else failure (the numbers of
 * handset/Status.h, or the backend's own). Outputs are written only on success; a null pointer is answered with
 * InvalidArgument (1), and a function with no handset behind it with NotAvailable (2). GUI thread only. */
#pragma once

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** A duration in whole seconds, the fraction cut off. The caller owns the record and zeroes it before a query. */
typedef struct TAPI_CallTime {
    uint32_t hours;  /**< 0 to 4294967295, where the time saturates at 59 min 59 s */
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
/** Zeroes every counter of the call log in one operation: the times of the last, dialed and answered calls, and the
 * costs of the last, dialed, answered and all calls. The lifetime total, the time of all calls (the call service's)
 * and that of the data calls stay. NotAllowed (6), and nothing zeroed, when the SIM refuses. */
int TAPI_LOG_ResetAll(void);

/** A day. The caller owns the record and zeroes it before a query. */
typedef struct TAPI_Date {
    uint16_t year; /**< 1 to 65535, Gregorian */
    uint8_t month; /**< 1 to 12 */
    uint8_t day;   /**< 1 to 31 */
} TAPI_Date;

/** Sizes of the buffers that the amount queries fill, in bytes, the terminating NUL included. */
enum { TAPI_CREDIT_TEXT_SIZE = 100, TAPI_AMOUNT_TEXT_SIZE = 50 };

/* Amounts are the handset's own decimal text, Latin-1, NUL-terminated, without a unit; whether they count units or
 * currency PHONE_ENG_Setup::getChargeType() reports. A text that does not fit the buffer is answered with TextTooLong
 * (5) and the buffer stays as it was. The caller owns the buffer and zeroes it before a query. */

/** The prepaid credit left; `text` has TAPI_CREDIT_TEXT_SIZE bytes. NotAvailable (2) where nothing has ever been paid
 * in. */
int TAPI_CS_GetRemainCredit(char *text);
/** The cost of the last call; `text` has TAPI_AMOUNT_TEXT_SIZE bytes, as in all queries below. */
int TAPI_CS_GetLastCallCost(char *text);
/** The day until which the last deposit is good. NotAvailable (2) where nothing has ever been paid in. */
int TAPI_LOG_GetDepositExpirationDate(TAPI_Date *date);
/** The last deposit. NotAvailable (2) where nothing has ever been paid in. */
int TAPI_LOG_GetLastDeposit(char *text);
/** The costs of all dialed, answered and all calls since their last reset. That of all calls is the SIM's accumulated
 * call meter (EF_ACM). */
int TAPI_LOG_GetDialedCallsCost(char *text);
int TAPI_LOG_GetAnsweredCallsCost(char *text);
int TAPI_LOG_GetAllCallsCost(char *text);
/** Each zeroes its own cost and nothing else. That of all calls is NotAllowed (6) when the SIM refuses. */
int TAPI_LOG_ResetAllCallsCost(void);
int TAPI_LOG_ResetDialedCallsCost(void);
int TAPI_LOG_ResetAnsweredCallsCost(void);

/** One of the three most recent packet-data sessions. All integers are little-endian, whatever the machine. */
typedef struct TAPI_GPRS_SessionRecord {
    uint8_t sessionId;      /**< 1 to 255; 0 marks an empty slot */
    uint8_t reserved[3];    /**< 0 */
    uint32_t bytesSent;     /**< 0 to 4294967295, where it saturates */
    uint32_t bytesReceived; /**< likewise */
    uint32_t hours;         /**< of the session's duration, 0 to 4294967295 */
    uint8_t minutes;        /**< 0 to 59 */
    uint8_t seconds;        /**< 0 to 59 */
    char apn[102];          /**< access point name, Latin-1, NUL-terminated */
} TAPI_GPRS_SessionRecord;

/** The caller owns the block and zeroes it before a query. */
typedef struct TAPI_GPRS_SessionInfo {
    uint32_t count; /**< number of records that count, from the first on, 0 to 3; little-endian */
    TAPI_GPRS_SessionRecord records[3];
} TAPI_GPRS_SessionInfo;

/** Fills the block with the three most recent sessions. TextTooLong (5), and nothing written, for an access point
 * name of more than 101 characters. */
int TAPI_GPRS_GetAllSessionInfo(TAPI_GPRS_SessionInfo *info);
/** The duration of all sessions since TAPI_GPRS_ResetTotalDuration(). */
int TAPI_GPRS_GetTotalDuration(TAPI_CallTime *duration);
/** Bytes of all sessions since TAPI_GPRS_ResetTotalDataBytes(), each 0 to 4294967295 (where it saturates). */
int TAPI_GPRS_GetTotalDataBytes(uint32_t *total, uint32_t *received, uint32_t *sent);
/** Each zeroes its own total and nothing else; the sessions keep their figures. */
int TAPI_GPRS_ResetTotalDuration(void);
int TAPI_GPRS_ResetTotalDataBytes(void);

/** What must be entered for PIN `pin` (1 is PIN2, the second PIN of the SIM): `status` 3 means nothing, any other
 * number that the PIN has to be entered or cannot be (see handset/SimSecurity.h). InvalidArgument (1) for a number
 * that is no PIN. */
int TAPI_SECURITY_GetAnyPinStatus(uint8_t pin, uint32_t *status);

#ifdef __cplusplus
}

static_assert(sizeof(TAPI_CallTime) == 8, "hours, minutes, seconds and padding");
static_assert(offsetof(TAPI_CallTime, hours) == 0, "");
static_assert(offsetof(TAPI_CallTime, minutes) == 4, "");
static_assert(offsetof(TAPI_CallTime, seconds) == 5, "");
static_assert(sizeof(TAPI_Date) == 4, "no padding");
static_assert(sizeof(TAPI_GPRS_SessionInfo) == 364, "the phone's block");
static_assert(offsetof(TAPI_GPRS_SessionInfo, count) == 0, "");
static_assert(offsetof(TAPI_GPRS_SessionInfo, records) == 4, "records follow the count");
static_assert(sizeof(TAPI_GPRS_SessionRecord) == 120, "records at 4, 124 and 244");
static_assert(offsetof(TAPI_GPRS_SessionRecord, sessionId) == 0, "");
static_assert(offsetof(TAPI_GPRS_SessionRecord, reserved) == 1, "");
static_assert(offsetof(TAPI_GPRS_SessionRecord, bytesSent) == 4, "");
static_assert(offsetof(TAPI_GPRS_SessionRecord, bytesReceived) == 8, "");
static_assert(offsetof(TAPI_GPRS_SessionRecord, hours) == 12, "");
static_assert(offsetof(TAPI_GPRS_SessionRecord, minutes) == 16, "");
static_assert(offsetof(TAPI_GPRS_SessionRecord, seconds) == 17, "");
static_assert(offsetof(TAPI_GPRS_SessionRecord, apn) == 18, "and to the record's end");
#endif
