#pragma once

#include <QStringView>
#include <string>

/* The one order of names: German (ICU, locale de, never the system's). The hybrid sign and quotation marks are passed over
   and a hyphen counts as a blank, so that all names of a genus stand together. */

/// Sort key of a name; keys compare bytewise. Never stored: they change with ICU.
std::string sortierschluessel(QStringView name);
