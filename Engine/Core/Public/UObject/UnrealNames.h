#pragma once

#include "CoreTypes.h"

/**
 * Names that are known when the program is compiled, with fixed indices. The enumerators of properties' type names are the ones that
 * packages use.
 */
#define UE_FOR_EACH_HARDCODED_NAME(Do) \
	Do(None) Do(ByteProperty) Do(IntProperty) Do(BoolProperty) Do(FloatProperty) Do(ObjectProperty) Do(NameProperty) \
		Do(DelegateProperty) Do(DoubleProperty) Do(ArrayProperty) Do(StructProperty) Do(VectorProperty) Do(RotatorProperty) \
			Do(StrProperty) Do(TextProperty) Do(InterfaceProperty) Do(MulticastDelegateProperty) Do(MulticastInlineDelegateProperty) \
				Do(MulticastSparseDelegateProperty) Do(WeakObjectProperty) Do(LazyObjectProperty) Do(SoftObjectProperty) \
					Do(SoftClassProperty) Do(ClassProperty) Do(UInt64Property) Do(UInt32Property) Do(UInt16Property) Do(Int64Property) \
						Do(Int16Property) Do(Int8Property) Do(MapProperty) Do(SetProperty) Do(EnumProperty) Do(OptionalProperty) \
							Do(FieldPathProperty) Do(ObjectPtrProperty) Do(Utf8StrProperty) Do(AnsiStrProperty) Do(Core) Do(Engine) \
								Do(Editor) Do(CoreUObject) Do(Cylinder) Do(BoxSphereBounds) Do(Sphere) Do(Box) Do(Vector2D) Do(IntRect) \
									Do(IntPoint) Do(IntVector) Do(Vector4) Do(Name) Do(Vector) Do(Rotator) Do(SHVector) Do(Color) \
										Do(Plane) Do(Matrix) Do(LinearColor) Do(AdvanceFrame) Do(Pointer) Do(Double) Do(Quat) Do(Self) \
											Do(Transform) Do(Guid) Do(DateTime) Do(Timespan) Do(Box2D) Do(Vector3f) Do(Vector3d) \
												Do(Vector2f) Do(Vector2d) Do(Vector4f) Do(Vector4d) Do(Quat4f) Do(Quat4d) Do(Rotator3f) \
													Do(Rotator3d) Do(Transform3f) Do(Transform3d) Do(Object) Do(Camera) Do(Actor) \
														Do(ObjectRedirector) Do(ObjectArchetype) Do(Class) Do(ScriptStruct) Do(Function) \
															Do(Pawn) Do(Enum) Do(State) Do(Enable) Do(Disable) Do(Timer) Do(String) \
																Do(Int) Do(Float) Do(Bool) Do(Byte) Do(Tag) Do(World) Do(Level) \
																	Do(Package) Do(Game) Do(GameThread) Do(RenderThread) Do(Location) \
																		Do(Rotation) Do(Scale) Do(Default) Do(All) Do(MinimalAPI) \
																			Do(Prefix) Do(Suffix)

/** Indices of the hard-coded names. */
enum class EName : uint32
{
#define UE_DECLARE_NAME(Name) Name,
	UE_FOR_EACH_HARDCODED_NAME(UE_DECLARE_NAME)
#undef UE_DECLARE_NAME
		MaxHardcodedNameIndex
};

#define UE_DECLARE_NAME(Name) inline constexpr EName NAME_##Name = EName::Name;
UE_FOR_EACH_HARDCODED_NAME(UE_DECLARE_NAME)
#undef UE_DECLARE_NAME

/** What to do about a name that nobody has used before. */
enum EFindName
{
	/** Answer NAME_None. */
	FNAME_Find,
	FNAME_Add,
	FNAME_Replace_Not_Safe_For_Threading
};

enum
{
	/** Characters of a name with its terminator, without its number. */
	NAME_SIZE = 1024
};
