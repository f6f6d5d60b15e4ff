#pragma once

#include "Auth/VexelAuthErrors.h"
#include "Misc/Guid.h"
#include "VexelCrypto.h"
#include "VexelErrorKinds.h"
#include "VexelSecureStorage.h"

/** Random ids of this machine, each made once and kept in the secure store. */
namespace VexelAuthIds
{
/**
 * The id under that key. OnNew is called when there is none yet and one is made. ErrorKind and While are of the error when it
 * cannot be kept.
 */
template <typename ErrorKind>
TVexelExpected<FString> FindOrMake(const TCHAR* Key, const TCHAR* While, TFunctionRef<void()> OnNew)
{
	const TVexelExpected<FString> Kept = FVexelSecureStorage::LoadValueString(Key);
	if (Kept.HasValue() && !Kept.GetValue().IsEmpty())
	{
		return Kept.GetValue();
	}
	OnNew();
	FGuid Guid;
	if (!FVexelCrypto::SecureRandomGuid(Guid))
	{
		return VEXEL_ERROR(ErrorKind, "There are no random bytes for a new id");
	}
	const FString Id = Guid.ToString(EGuidFormats::DigitsWithHyphensLower);
	const TVexelExpected<void> Stored = FVexelSecureStorage::StoreValueString(Key, Id);
	if (Stored.HasError())
	{
		return VexelAuthErrors::Wrap<ErrorKind>(VEXEL_HERE, Stored.GetError(), While);
	}
	return Id;
}
}
