#pragma once

#include "Lum/Property/LumForwardingProperty.h"
#include "Lum/Value/LumValueOwner.h"

class FProperty;

/** A value that no object holds, such as the default of a local variable: it is made from its text, and lives as long as this. */
class FLumUnrealVirtualProperty : public FLumForwardingProperty
{
public:
	/**
	 * Makes a property of the kind for a value of that text; empty text is the type's own default. Fails where the text is none of the property's,
	 * or the property has no Lum kind. ArgTypes are the kind's own, behind those of this class.
	 */
	template <typename VirtualType = FLumUnrealVirtualProperty, typename... ArgTypes>
	static TVexelExpected<TSharedRef<ILumProperty>> Create(const FProperty& Property, const FString& Text, ArgTypes&&... Args)
	{
		VEXEL_TRY(const FValue Value, MakeValue(Property, Text));
		return StaticCastSharedRef<ILumProperty>(MakeShared<VirtualType>(Value, Forward<ArgTypes>(Args)...));
	}

	/** A value, with the property that reads and writes it. */
	struct FValue
	{
		const FProperty* Property;
		TSharedRef<ILumValueOwner> Owner;
		TSharedRef<ILumProperty> Inner;
	};

	explicit FLumUnrealVirtualProperty(const FValue& InValue);

	/** As the value's kind does; what was imported before a failure is kept, as it is in objects. */
	virtual TVexelExpected<void> JsonImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& Value) override;

protected:
	/** The value in the engine's text form. */
	FString ExportText() const;

private:
	static TVexelExpected<FValue> MakeValue(const FProperty& Property, const FString& Text);

	FValue Value;
};
