/*
 * The host's property store, in place of the platform's libcutils (whose header needs bionic).
 * One file per key in $BREL_PROPERTY_DIR, read on every call; unset or empty, the build's own
 * properties directory. The file holds the value and a newline.
 */
#ifndef DUMPBREL_SIM_CUTILS_PROPERTIES_H
#define DUMPBREL_SIM_CUTILS_PROPERTIES_H

#ifdef __cplusplus
extern "C" {
#endif

#define PROPERTY_VALUE_MAX 92

/* Copies the value (at most PROPERTY_VALUE_MAX - 1 bytes and a zero) into `value`; a missing or
 * empty value gives `default_value` (or the empty text when that is null). Returns the length. */
int property_get(const char* key, char* value, const char* default_value);

/* Stores `value` under `key`: 0, or -1 for a key holding '/', a value of PROPERTY_VALUE_MAX
 * bytes or more, or a file that cannot be written (then with one line on standard error). */
int property_set(const char* key, const char* value);

#ifdef __cplusplus
}
#endif

#endif /* DUMPBREL_SIM_CUTILS_PROPERTIES_H */
