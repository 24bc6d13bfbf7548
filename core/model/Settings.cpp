#include "model/Settings.h"

Settings::~Settings() = default;
