#pragma once

#include "Lum/Property/LumForwardingProperty.h"

class FProperty;

/** A value that no object holds, such as the default of a local variable: it is made from its text, and lives as long as this. */
class FLumUnrealVirtualProperty : public FLumForwardingProperty
{
public:
	/** Empty text is the type's own default. Fails where the text is none of the property's, or the property has no Lum kind. */
	static TVexelExpected<TSharedRef<ILumProperty>> Create(const FProperty& Property, const FString& Text);

	FLumUnrealVirtualProperty(const FProperty& InProperty, void* InData, const TSharedRef<ILumProperty>& InInner);
	virtual ~FLumUnrealVirtualProperty() override;
	FLumUnrealVirtualProperty(const FLumUnrealVirtualProperty&) = delete;
	FLumUnrealVirtualProperty& operator=(const FLumUnrealVirtualProperty&) = delete;

private:
	const FProperty& Property;
	void* Data;
};
