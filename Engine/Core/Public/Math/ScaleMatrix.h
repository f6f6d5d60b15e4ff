#pragma once

#include "Math/RotationMatrix.h"
