#pragma once

#include "Math/MathFwd.h"
