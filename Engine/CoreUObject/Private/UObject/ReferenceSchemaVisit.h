#pragma once

#include "UObject/Class.h"
#include "UObject/GarbageCollectionSchema.h"
#include "UObject/UnrealType.h"

/**
 * Hands every pointer that the schema finds in Data to Handle(UObject*&, const FProperty*); what only a property or a struct
 * knows how to find goes through Collector. Inlined into its two users, of which one is the collector's inner loop.
 */
template <typename HandlerType>
void VisitReferences(
	const FReferenceSchema& Schema, void* Data, FReferenceCollector& Collector, const UObject* ReferencingObject, HandlerType& Handle)
{
	for (const FReferenceSchema::FMember& Member : Schema.Members)
	{
		uint8* const Value = static_cast<uint8*>(Data) + Member.Offset;
		switch (Member.Kind)
		{
			case FReferenceSchema::EKind::Object:
				Handle(*reinterpret_cast<UObject**>(Value), Member.Property);
				break;
			case FReferenceSchema::EKind::ObjectArray:
				for (UObject*& Object : *reinterpret_cast<TArray<UObject*>*>(Value))
				{
					Handle(Object, Member.Property);
				}
				break;
			case FReferenceSchema::EKind::StructArray:
			{
				const FScriptArray& Array = *reinterpret_cast<const FScriptArray*>(Value);
				uint8* const Elements = static_cast<uint8*>(const_cast<void*>(static_cast<const void*>(Array.GetData())));
				const FReferenceSchema& ElementSchema = Member.ElementStruct->GetReferenceSchema();
				for (int32 Index = 0; Index < Array.Num(); ++Index)
				{
					VisitReferences(
						ElementSchema, Elements + static_cast<SIZE_T>(Index) * Member.Stride, Collector, ReferencingObject, Handle);
				}
				break;
			}
			case FReferenceSchema::EKind::StructFunction:
				Member.Function(Value, Collector);
				break;
			case FReferenceSchema::EKind::Property:
				Member.Property->CollectReferences(Value, Collector, ReferencingObject);
				break;
		}
	}
}
