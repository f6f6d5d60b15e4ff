#pragma once

#include "Templates/Casts.h"
