#include "Assistant/NodePhrases.h"

#include "Assistant/Words.h"

#include <algorithm>

namespace VexelService
{

namespace
{

constexpr FActionPhrase Actions[] = {
	{"PrintString", "prints {InString}"},
	{"PrintText", "prints {InText}"},
	{"PrintWarning", "prints the warning {InString}"},
	{"Delay", "waits {Duration} seconds", true},
	{"RetriggerableDelay", "waits {Duration} seconds, counted anew each time it gets here", true},
	{"DelayUntilNextTick", "waits for the next frame", true},
	{"MoveComponentTo", "moves {Component} to {TargetRelativeLocation} over {OverTime} seconds", true},
	{"K2_DestroyActor", "destroys {self}"},
	{"K2_DestroyComponent", "destroys {self}"},
	{"SetLifeSpan", "sets {self's} life span to {InLifespan} seconds"},
	{"SetActorHiddenInGame", "{bNewHidden?hides:shows} {self} in the game"},
	{"SetActorEnableCollision", "{bNewActorEnableCollision?turns on:turns off} {self's} collision"},
	{"SetActorTickEnabled", "{bEnabled?turns on:turns off} {self's} tick"},
	{"K2_SetActorLocation", "moves {self} to {NewLocation}"},
	{"K2_SetActorRotation", "rotates {self} to {NewRotation}"},
	{"K2_SetActorLocationAndRotation", "moves {self} to {NewLocation} with the rotation {NewRotation}"},
	{"K2_SetActorTransform", "sets {self's} transform to {NewTransform}"},
	{"K2_SetActorRelativeLocation", "moves {self} to {NewRelativeLocation} relative to its parent"},
	{"K2_SetActorRelativeRotation", "rotates {self} to {NewRelativeRotation} relative to its parent"},
	{"SetActorScale3D", "sets {self's} scale to {NewScale3D}"},
	{"K2_AddActorWorldOffset", "moves {self} by {DeltaLocation}"},
	{"K2_AddActorLocalOffset", "moves {self} by {DeltaLocation} in its own directions"},
	{"K2_AddActorWorldRotation", "rotates {self} by {DeltaRotation}"},
	{"K2_AddActorLocalRotation", "rotates {self} by {DeltaRotation} in its own directions"},
	{"K2_TeleportTo", "teleports {self} to {DestLocation}"},
	{"K2_AttachToActor", "attaches {self} to {ParentActor}"},
	{"K2_AttachToComponent", "attaches {self} to {Parent}"},
	{"K2_DetachFromActor", "detaches {self} from its parent"},
	{"K2_SetWorldLocation", "moves {self} to {NewLocation}"},
	{"K2_SetRelativeLocation", "moves {self} to {NewLocation} relative to its parent"},
	{"K2_SetWorldRotation", "rotates {self} to {NewRotation}"},
	{"K2_SetRelativeRotation", "rotates {self} to {NewRotation} relative to its parent"},
	{"K2_AddRelativeRotation", "rotates {self} by {DeltaRotation} relative to its parent"},
	{"K2_AddLocalRotation", "rotates {self} by {DeltaRotation} in its own directions"},
	{"K2_AddRelativeLocation", "moves {self} by {DeltaLocation} relative to its parent"},
	{"SetRelativeScale3D", "sets {self's} scale to {NewScale3D}"},
	{"SetVisibility", "{bNewVisibility?shows:hides} {self}"},
	{"ToggleVisibility", "shows {self} if it is hidden, and hides it if it is shown"},
	{"SetHiddenInGame", "{NewHidden?hides:shows} {self} in the game"},
	{"SetCollisionEnabled", "sets {self's} collision to {NewType}"},
	{"SetSimulatePhysics", "{bSimulate?turns on:turns off} {self's} physics"},
	{"AddImpulse", "pushes {self} with the impulse {Impulse}"},
	{"AddForce", "pushes {self} with the force {Force}"},
	{"SetStaticMesh", "gives {self} the mesh {NewMesh}"},
	{"SetMaterial", "gives {self} the material {Material}"},
	{"SetIntensity", "sets {self's} intensity to {NewIntensity}"},
	{"SetLightColor", "sets {self's} light color to {NewLightColor}"},
	{"LaunchCharacter", "launches {self} with the velocity {LaunchVelocity}"},
	{"Jump", "makes {self} jump"},
	{"StopJumping", "stops {self's} jump"},
	{"Crouch", "makes {self} crouch"},
	{"AddMovementInput", "moves {self} towards {WorldDirection}, scaled by {ScaleValue}"},
	{"AddControllerYawInput", "turns {self's} view sideways by {Val}"},
	{"AddControllerPitchInput", "turns {self's} view up or down by {Val}"},
	{"Possess", "makes {self} possess {InPawn}"},
	{"ApplyDamage", "deals {BaseDamage} damage to {DamagedActor}"},
	{"ApplyRadialDamage", "deals {BaseDamage} damage to everything within {DamageRadius} of {Origin}"},
	{"PlaySoundAtLocation", "plays the sound {Sound} at {Location}"},
	{"PlaySound2D", "plays the sound {Sound2D}"},
	{"SpawnSoundAtLocation", "plays the sound {Sound} at {Location}"},
	{"SpawnEmitterAtLocation", "spawns the effect {EmitterTemplate} at {Location}"},
	{"SpawnSystemAtLocation", "spawns the effect {SystemTemplate} at {Location}"},
	{"OpenLevel", "opens the level {LevelName}"},
	{"QuitGame", "quits the game"},
	{"SetGamePaused", "{bPaused?pauses:resumes} the game"},
	{"SetGlobalTimeDilation", "sets the speed of time to {TimeDilation}"},
	{"ExecuteConsoleCommand", "runs the console command {Command}"},
	{"EnableInput", "lets {self} receive input from {PlayerController}"},
	{"DisableInput", "stops {self} from receiving input from {PlayerController}"},
	{"AddToViewport", "shows {self} on the screen"},
	{"RemoveFromParent", "removes {self} from the screen"},
	{"SetText", "sets {self's} text to {InText}"},
	{"K2_SetTimer", "starts a timer that calls the function {FunctionName} {bLooping?every:after} {Time} seconds"},
	{"K2_SetTimerDelegate", "starts a timer that runs {Delegate} {bLooping?every:after} {Time} seconds"},
	{"K2_ClearAndInvalidateTimerHandle", "stops the timer {Handle}"},
	{"Array_Add", "adds {NewItem} to {TargetArray}"},
	{"Array_AddUnique", "adds {NewItem} to {TargetArray} unless it is there already"},
	{"Array_Append", "appends {SourceArray} to {TargetArray}"},
	{"Array_Remove", "removes element {IndexToRemove} from {TargetArray}"},
	{"Array_RemoveItem", "removes {Item} from {TargetArray}"},
	{"Array_Clear", "empties {TargetArray}"},
	{"Array_Insert", "inserts {NewItem} into {TargetArray} at {Index}"},
	{"Array_Set", "sets element {Index} of {TargetArray} to {Item}"},
	{"Array_Shuffle", "shuffles {TargetArray}"},
	{"Map_Add", "stores {Value} under {Key} in {TargetMap}"},
	{"Map_Remove", "removes {Key} from {TargetMap}"},
	{"Map_Clear", "empties {TargetMap}"},
	{"Set_Add", "adds {NewItem} to {TargetSet}"},
	{"Set_Remove", "removes {Item} from {TargetSet}"},
	{"Play", "plays {self}"},
	{"Stop", "stops {self}"},
	{"Activate", "activates {self}"},
	{"Deactivate", "deactivates {self}"},
	{"SaveGameToSlot", "saves {SaveGameObject} in the slot {SlotName}"},
};

constexpr FValuePhrase Values[] = {
	{"GetPlayerPawn", "the player's pawn"},
	{"GetPlayerCharacter", "the player's character"},
	{"GetPlayerController", "the player's controller"},
	{"GetPlayerCameraManager", "the player's camera"},
	{"GetGameMode", "the game mode"},
	{"GetGameState", "the game state"},
	{"GetGameInstance", "the game instance"},
	{"GetController", "{self's} controller"},
	{"GetOwner", "{self's} owner"},
	{"GetInstigator", "{self's} instigator"},
	{"K2_GetActorLocation", "{self's} location"},
	{"K2_GetActorRotation", "{self's} rotation"},
	{"GetTransform", "{self's} transform"},
	{"GetActorScale3D", "{self's} scale"},
	{"GetActorForwardVector", "{self's} forward direction"},
	{"GetActorRightVector", "{self's} right direction"},
	{"GetActorUpVector", "{self's} up direction"},
	{"K2_GetComponentLocation", "{self's} location"},
	{"K2_GetComponentRotation", "{self's} rotation"},
	{"K2_GetComponentToWorld", "{self's} transform"},
	{"GetForwardVector", "the forward direction of {InRot}"},
	{"GetRightVector", "the right direction of {InRot}"},
	{"GetVelocity", "{self's} velocity"},
	{"GetOverlappingActors", "the {ClassFilter&% }actors that overlap {it}", EExpressionForm::Atom, "OverlappingActors"},
	{"GetDistanceTo", "the distance from {self} to {OtherActor}"},
	{"GetWorldDeltaSeconds", "the time since the last frame"},
	{"GetTimeSeconds", "the game time in seconds"},
	{"GetDisplayName", "the display name of {Object}"},
	{"GetObjectName", "the name of {Object}"},
	{"IsValid", "{Object} is valid", EExpressionForm::Predicate},
	{"IsValidClass", "{Class} is valid", EExpressionForm::Predicate},
	{"ActorHasTag", "{self} has the tag {Tag}", EExpressionForm::Predicate},
	{"IsOverlappingActor", "{self} is overlapping {Other}", EExpressionForm::Predicate},
	{"IsPlayerControlled", "{self} is controlled by a player", EExpressionForm::Predicate},
	{"IsFalling", "{self} is falling", EExpressionForm::Predicate},
	{"IsInputKeyDown", "the key {Key} is down", EExpressionForm::Predicate},
	{"HasAuthority", "{self} is on the server", EExpressionForm::Predicate},
	{"RandomBool", "a coin toss is won", EExpressionForm::Predicate},
	{"RandomBoolWithWeight", "a chance of {Weight} is met", EExpressionForm::Predicate},
	{"RandomFloat", "a random number from 0 to 1"},
	{"RandomFloatInRange", "a random number from {Min} to {Max}"},
	{"RandomInteger", "a random integer below {Max}"},
	{"RandomIntegerInRange", "a random integer from {Min} to {Max}"},
	{"RandomUnitVector", "a random direction"},
	{"Lerp", "the blend of {A} and {B} at {Alpha}"},
	{"VLerp", "the blend of {A} and {B} at {Alpha}"},
	{"RLerp", "the blend of {A} and {B} at {Alpha}"},
	{"FInterpTo", "the next value from {Current} smoothly towards {Target}"},
	{"VInterpTo", "the next point from {Current} smoothly towards {Target}"},
	{"RInterpTo", "the next rotation from {Current} smoothly towards {Target}"},
	{"FInterpTo_Constant", "the next value from {Current} towards {Target} at the speed {InterpSpeed}"},
	{"VInterpTo_Constant", "the next point from {Current} towards {Target} at the speed {InterpSpeed}"},
	{"RInterpTo_Constant", "the next rotation from {Current} towards {Target} at the speed {InterpSpeed}"},
	{"FClamp", "{Value}, kept between {Min} and {Max}", EExpressionForm::Operation},
	{"Clamp", "{Value}, kept between {Min} and {Max}", EExpressionForm::Operation},
	{"FMin", "the smaller of {A} and {B}"},
	{"Min", "the smaller of {A} and {B}"},
	{"FMax", "the larger of {A} and {B}"},
	{"Max", "the larger of {A} and {B}"},
	{"Abs", "the absolute value of {A}"},
	{"Abs_Int", "the absolute value of {A}"},
	{"Sin", "the sine of {A}"},
	{"Cos", "the cosine of {A}"},
	{"Sqrt", "the square root of {A}"},
	{"VSize", "the length of {A}"},
	{"Vector_Distance", "the distance from {V1} to {V2}"},
	{"Normal", "the direction of {A}"},
	{"MakeVector", "({X}, {Y}, {Z})"},
	{"MakeVector2D", "({X}, {Y})"},
	{"MakeRotator", "(Roll {Roll}, Pitch {Pitch}, Yaw {Yaw})"},
	{"MakeTransform", "a transform with the location {Location}, the rotation {Rotation} and the scale {Scale}"},
	{"MakeColor", "the color ({R}, {G}, {B}, {A})"},
	{"FindLookAtRotation", "the rotation that looks from {Start} to {Target}"},
	{"SelectFloat", "{A} if {bPickA}, otherwise {B}", EExpressionForm::Operation},
	{"SelectInt", "{A} if {bPickA}, otherwise {B}", EExpressionForm::Operation},
	{"SelectString", "{A} if {bPickA}, otherwise {B}", EExpressionForm::Operation},
	{"SelectVector", "{A} if {bPickA}, otherwise {B}", EExpressionForm::Operation},
	{"InRange_FloatFloat", "{Value} is between {Min} and {Max}", EExpressionForm::Predicate},
	{"Array_Length", "the number of elements of {TargetArray}"},
	{"Array_LastIndex", "the last index of {TargetArray}"},
	{"Array_Get", "element {Index} of {TargetArray}"},
	{"Array_Contains", "{TargetArray} contains {ItemToFind}", EExpressionForm::Predicate},
	{"Array_Find", "the index of {ItemToFind} in {TargetArray}"},
	{"Array_IsEmpty", "{TargetArray} is empty", EExpressionForm::Predicate},
	{"Array_IsNotEmpty", "{TargetArray} is not empty", EExpressionForm::Predicate},
	{"Map_Find", "the value under {Key} in {TargetMap}"},
	{"Map_Contains", "{TargetMap} contains {Key}", EExpressionForm::Predicate},
	{"Map_Length", "the number of entries of {TargetMap}"},
	{"Set_Contains", "{TargetSet} contains {ItemToFind}", EExpressionForm::Predicate},
	{"Len", "the length of {S}"},
	{"Contains", "{SearchIn} contains {Substring}", EExpressionForm::Predicate},
	{"ToUpper", "{SourceString} in upper case"},
	{"ToLower", "{SourceString} in lower case"},
};

constexpr FOperatorPhrase Operators[] = {
	{"Add", " + "},
	{"Subtract", " - "},
	{"Multiply", " * "},
	{"Divide", " / "},
	{"Percent", " modulo "},
	{"Concat", " followed by "},
	{"Less", " is less than ", EExpressionForm::Predicate},
	{"LessEqual", " is less than or equal to ", EExpressionForm::Predicate},
	{"Greater", " is greater than ", EExpressionForm::Predicate},
	{"GreaterEqual", " is greater than or equal to ", EExpressionForm::Predicate},
	{"EqualEqual", " is equal to ", EExpressionForm::Predicate},
	{"NotEqual", " is not equal to ", EExpressionForm::Predicate},
	{"EqualExactly", " is exactly equal to ", EExpressionForm::Predicate},
	{"BooleanAND", " and ", EExpressionForm::Predicate},
	{"BooleanOR", " or ", EExpressionForm::Predicate},
	{"BooleanXOR", " or else ", EExpressionForm::Predicate},
};

constexpr FEventPhrase Events[] = {
	{"ReceiveBeginPlay", "when play begins", "beginplay begin start starts started game spawned level loaded"},
	{"ReceiveTick", "every frame", "tick frame update"},
	{"ReceiveEndPlay", "when it leaves play", "endplay end ends removed game stop"},
	{"ReceiveDestroyed", "when it is destroyed", "destroy dies died death killed destroyed"},
	{"ReceiveActorBeginOverlap", "when another actor begins to overlap it", "overlap overlaps enters touches walks into player begin"},
	{"ReceiveActorEndOverlap", "when another actor stops overlapping it", "end ends stops leaves exits away player"},
	{"ReceiveHit", "when it hits something", "hit hits collides collision blocked"},
	{"ReceiveAnyDamage", "when it takes damage", "damage damaged hurt hit hits shot attacked loses health"},
	{"ReceivePointDamage", "when it takes damage at a point", "damage damaged hurt shot"},
	{"ReceiveRadialDamage", "when it takes damage from a blast", "damage damaged hurt explosion"},
	{"ReceiveActorBeginCursorOver", "when the cursor moves over it", "cursor mouse hover hovered"},
	{"ReceiveActorEndCursorOver", "when the cursor leaves it", "cursor mouse unhovered"},
	{"ReceiveActorOnClicked", "when it is clicked", "click clicks clicked mouse"},
	{"ReceiveActorOnReleased", "when a click on it is released", "click released mouse"},
	{"ReceivePossessed", "when a controller possesses it", "possess possessed controlled"},
	{"ReceiveUnpossessed", "when its controller lets it go", "unpossess unpossessed"},
	{"OnLanded", "when it lands", "land lands falls"},
	{"UserConstructionScript", "when it is placed or changed in the editor", "construction construct constructed spawned placed"},
	{"Construct", "when it is constructed", "construct created shown"},
	{"PreConstruct", "before it is constructed", "preconstruct designer"},
	{"Destruct", "when it is taken down", "destruct removed"},
	{"Tick", "every frame", "tick frame update"},
	{"ReceiveInit", "when it is initialised", "init initialise initialize"},
	{"ReceiveShutdown", "when it is shut down", "shutdown ends"},
	{"BlueprintInitializeAnimation", "when the animation is initialised", "init initialise initialize animation"},
	{"BlueprintUpdateAnimation", "every time the animation is updated", "update animation frame"},
	{"OnComponentBeginOverlap", "when something begins to overlap its %", "overlap overlaps enters touches walks into player begin"},
	{"OnComponentEndOverlap", "when something stops overlapping its %", "end ends stops leaves exits away player"},
	{"OnComponentHit", "when its % hits something", "hit hits collides collision"},
	{"OnClicked", "when % is clicked", "click clicked button pressed"},
	{"OnPressed", "when % is pressed", "press pressed button"},
	{"OnReleased", "when % is released", "release released button"},
	{"OnHovered", "when the cursor moves over %", "hover hovered"},
	{"OnUnhovered", "when the cursor leaves %", "unhovered"},
	{"OnActorBeginOverlap", "when another actor begins to overlap %", "overlap overlaps enters player begin"},
	{"OnActorEndOverlap", "when another actor stops overlapping %", "end ends stops leaves exits away player"},
	{"OnTakeAnyDamage", "when % takes damage", "damage damaged hurt"},
	{"OnDestroyed", "when % is destroyed", "destroy destroyed dies"},
};

constexpr FParameterPhrase Parameters[] = {
	{"OtherActor", "the other actor"},
	{"OtherComp", "the other component"},
	{"OverlappedComponent", "the overlapped component"},
	{"DeltaSeconds", "the time since the last frame"},
	{"DeltaTimeX", "the time since the last frame"},
	{"InDeltaTime", "the time since the last frame"},
	{"Damage", "the damage"},
	{"DamageCauser", "the damage's causer"},
	{"InstigatedBy", "the damage's instigator"},
	{"EndPlayReason", "the reason"},
	{"HitNormal", "the hit's direction"},
	{"HitLocation", "the hit's location"},
	{"AxisValue", "the axis value"},
	{"ActionValue", "the input's value"},
	{"Key", "the key"},
};

template <typename TRow, std::size_t Count, typename TKey>
const TRow* FindRow(const TRow (&Table)[Count], std::string_view Key, TKey TRow::*Member)
{
	const TRow* const Found = std::find_if(std::begin(Table), std::end(Table), [&](const TRow& Row)
		{ return EqualIgnoringCase(Row.*Member, Key); });
	return Found == std::end(Table) ? nullptr : Found;
}

}

const FActionPhrase* FindActionPhrase(std::string_view Function)
{
	return FindRow(Actions, Function, &FActionPhrase::Function);
}

const FValuePhrase* FindValuePhrase(std::string_view Function)
{
	return FindRow(Values, Function, &FValuePhrase::Function);
}

const FOperatorPhrase* FindOperatorPhrase(std::string_view Operation)
{
	return FindRow(Operators, Operation, &FOperatorPhrase::Operation);
}

const FEventPhrase* FindEventPhrase(std::string_view Event)
{
	return FindRow(Events, Event, &FEventPhrase::Event);
}

const FParameterPhrase* FindParameterPhrase(std::string_view Pin)
{
	return FindRow(Parameters, Pin, &FParameterPhrase::Pin);
}

}
