#include "platform/jet/ParsedExpression.h"

#include "platform/jet/ParsedStatement.h"

namespace akarix {

ParsedExpression::ParsedExpression(ParsedNode content, qsizetype place)
    : node(std::move(content)), position(place) {}

ParsedExpression::~ParsedExpression() = default;

}  // namespace akarix
