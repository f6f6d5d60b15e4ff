#pragma once

#include "UObject/Class.h"
#include "UObject/ScriptInterface.h"

/** Base of the U-classes of interfaces: they carry an interface's reflection, no instances. */
class COREUOBJECT_API UInterface : public UObject
{
	DECLARE_CLASS_INTRINSIC(UInterface, UObject, CLASS_Abstract | CLASS_Interface, "/Script/CoreUObject")

public:
	UInterface() = default;
	explicit UInterface(const FObjectInitializer& ObjectInitializer);
};

/** Base of the I-classes of interfaces. */
class COREUOBJECT_API IInterface
{
public:
	typedef UInterface UClassType;
	virtual ~IInterface() = default;
	/** The object that this is an interface of. HeaderTool defines it in each I-class. */
	virtual UObject* _getUObject() const { return nullptr; }

protected:
	IInterface() = default;
	IInterface(const IInterface&) = default;
	IInterface& operator=(const IInterface&) = default;
};
