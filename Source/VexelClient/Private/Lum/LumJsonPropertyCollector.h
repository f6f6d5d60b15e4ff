#pragma once

#include "Dom/JsonObject.h"
#include "Lum/LumPropertyCollector.h"

class FLumContext;

/** Exports what it is handed. The context must outlive it. */
class FLumJsonPropertyCollector : public ILumPropertyCollector
{
public:
	explicit FLumJsonPropertyCollector(const FLumContext& InContext)
		: Context(InContext)
	{
	}

	virtual TVexelExpected<void> Property(const TSharedRef<ILumProperty>& Property) override;
	virtual TVexelExpected<void> Variable(const TSharedRef<ILumVariable>& Variable) override;

	/** Makes room for that many properties. */
	void Reserve(int32 NumProperties) { Properties.Reserve(NumProperties); }
	/** Moves what was collected into the object's arrays; one that would be empty gets no key. */
	void MoveTo(const TSharedRef<FJsonObject>& Object, const TCHAR* PropertiesKey, const TCHAR* VariablesKey);

private:
	const FLumContext& Context;
	TArray<TSharedPtr<FJsonValue>> Properties;
	TArray<TSharedPtr<FJsonValue>> Variables;
};
