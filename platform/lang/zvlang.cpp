#include "zvlang.h"

int Lang_Init(int, const char *, const char *, const char *, char *) { return 0; }
int Lang_Exit(char *) { return 0; }
int Lang_GetDateStr(const char *, char *, char *) { return 0; }
int Lang_GetDateTimeStr(const char *, char *, char *) { return 0; }
int Lang_GetNumberStr(const char *, char *, char *) { return 0; }
int Lang_GetMoneyStr(const char *, char *, char *) { return 0; }
int Lang_GetStorageStr(const char *, char *, char *) { return 0; }
