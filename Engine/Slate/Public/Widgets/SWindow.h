#pragma once

#include "CoreTypes.h"

/** Something that is drawn. */
class SWidget
{
public:
	virtual ~SWidget() = default;
};

/** A window of the desktop. */
class SWindow : public SWidget
{
};
