#pragma once

#include "admin/PostalPlace.h"

namespace akarix::admin {

/// Reads a list of postal codes: the operator's table (15 columns, code page 932 or UTF-8), the zip archive
/// it comes in, or a JSON object of codes, each with its prefectures and their places
/// {"1000001":{"東京都":["千代田区千代田"]}}. Raises 1004, naming the line, for anything else.
PostalCodes ReadPostalList(const QString& path);

}  // namespace akarix::admin
