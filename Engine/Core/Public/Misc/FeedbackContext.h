#pragma once

#include "Misc/OutputDevice.h"

/** Takes the messages of an import or another long operation. */
class FFeedbackContext : public FOutputDevice
{
};
