#pragma once

#include "zvlang_export.h"

/// Localised texts. A request is one compact JSON object in UTF-8. The answer is written into
/// \a answer, which holds LangAnswerSize bytes, an error text into \a error, which holds
/// LangErrorSize bytes; both end with a zero byte and are cut between characters when too long.
/// Either may be null when the caller does not want it. Every function returns non-zero on
/// success; after a failure the answer is empty, after a success the error text. A language that
/// nobody knows is answered in English. They may be called from any thread, before Lang_Init too.
extern "C" {

enum { LangAnswerSize = 1024, LangErrorSize = 4096, LangLargestPrecision = 9 };

/// \a request: "os", "wsid", "did", "pname", "pver", "pid", "plang". \a logPath: file that
/// warnings are appended to; its folder is made when missing, null or empty for none. Texts come
/// without a log too: one that cannot be written is reported through Qt and fails nothing.
/// \a level is reserved, pass 1.
ZVLANG_EXPORT int Lang_Init(int level, const char *request, const char *product,
                            const char *logPath, char *error);
/// Fails when Lang_Init was not called.
ZVLANG_EXPORT int Lang_Exit(char *error);
/// \a request: "lang", "timestamp" in seconds since the epoch, within the years 1 to 9999.
ZVLANG_EXPORT int Lang_GetDateStr(const char *request, char *answer, char *error);
ZVLANG_EXPORT int Lang_GetDateTimeStr(const char *request, char *answer, char *error);
/// \a request: "lang", "number".
ZVLANG_EXPORT int Lang_GetNumberStr(const char *request, char *answer, char *error);
/// \a request: "lang", "money".
ZVLANG_EXPORT int Lang_GetMoneyStr(const char *request, char *answer, char *error);
/// \a request: "lang", "bytes", "precision" (decimals, 0 to LangLargestPrecision).
ZVLANG_EXPORT int Lang_GetStorageStr(const char *request, char *answer, char *error);
}
