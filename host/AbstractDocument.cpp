#include "host/AbstractDocument.h"

AbstractDocument::AbstractDocument() = default;
AbstractDocument::~AbstractDocument() = default;
