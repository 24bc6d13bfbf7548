#include "model/Link.h"

Link::Link(const EnumElementType& kind) : Element(kind) {}

Link::~Link() = default;
