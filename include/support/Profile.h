// Profiles: INI-style text files, in EUC-JP. Every call loads, edits and stores the whole file.
//
// `profname` "" is the designer's own profile, "VarnixMaster.ini" in `PathName`; any other text is
// the path of a profile. `format` has one letter per field: "s" text (buffer of at least 100 bytes,
// cut at 99), "i" decimal gint, "h" hexadecimal guint16; then follows one pointer per field. The
// "2" variants address the key named `keyname` followed by the decimal number `no`.
#pragma once

#include "Types.h"

// Reads the fields; each destination is written, "" or 0 where the field is missing or malformed.
// Returns the number of fields that were there. A sign makes a number malformed.
gint ProfileRead1(const gchar* profname, const gchar* section, const gchar* keyname,
                  const gchar* format, ...);
gint ProfileRead2(const gchar* profname, const gchar* section, const gchar* keyname, gint no,
                  const gchar* format, ...);
gint ProfileReadInt1(const gchar* profname, const gchar* section, const gchar* keyname);
gint ProfileReadInt2(const gchar* profname, const gchar* section, const gchar* keyname, gint no);
guint16 ProfileReadHex1(const gchar* profname, const gchar* section, const gchar* keyname);
guint16 ProfileReadHex2(const gchar* profname, const gchar* section, const gchar* keyname, gint no);
// The first field as text, in a buffer that the next such call overwrites.
gchar* ProfileReadAsc1(const gchar* profname, const gchar* section, const gchar* keyname);
gchar* ProfileReadAsc2(const gchar* profname, const gchar* section, const gchar* keyname, gint no);

// Writes the fields, joined by ",". Returns their number. New keys stand first in their section.
gint ProfileWrite1(const gchar* profname, const gchar* section, const gchar* keyname,
                   const gchar* format, ...);
gint ProfileWrite2(const gchar* profname, const gchar* section, const gchar* keyname, gint no,
                   const gchar* format, ...);
void ProfileWriteInt1(const gchar* profname, const gchar* section, const gchar* keyname, gint data);
void ProfileWriteInt2(const gchar* profname, const gchar* section, const gchar* keyname, gint no,
                      gint data);
void ProfileWriteHexa1(const gchar* profname, const gchar* section, const gchar* keyname,
                       guint16 hexa);
void ProfileWriteHexa2(const gchar* profname, const gchar* section, const gchar* keyname, gint no,
                       guint16 hexa);
void ProfileWriteAsc1(const gchar* profname, const gchar* section, const gchar* keyname,
                      const gchar* text);
void ProfileWriteAsc2(const gchar* profname, const gchar* section, const gchar* keyname, gint no,
                      const gchar* text);
// Writes one text, then blanks up to byte column `culm` of the line, then `comment`.
void ProfileWrite3(const gchar* profname, const gchar* section, const gchar* keyname,
                   const gchar* text, gint culm, const gchar* comment);
void ProfileWrite4(const gchar* profname, const gchar* section, const gchar* keyname, gint no,
                   const gchar* text, gint culm, const gchar* comment);

// Removes the key's line; the section header stays. Without such a key the file is not touched.
void ProfileDelete1(const gchar* profname, const gchar* section, const gchar* keyname);
void ProfileDelete2(const gchar* profname, const gchar* section, const gchar* keyname, gint no);
