#pragma once

#include "CoreMinimal.h"
#include "VexelExpected.h"

class ILumProperty;
class ILumVariable;

/** Takes what a compound holds, one thing at a time. An error stops the iteration. */
class ILumPropertyCollector
{
public:
	virtual ~ILumPropertyCollector() = default;

	virtual TVexelExpected<void> Property(const TSharedRef<ILumProperty>& Property) = 0;
	virtual TVexelExpected<void> Variable(const TSharedRef<ILumVariable>& Variable) = 0;
};
