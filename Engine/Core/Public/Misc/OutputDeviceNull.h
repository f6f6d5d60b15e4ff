#pragma once

#include "Misc/OutputDevice.h"
