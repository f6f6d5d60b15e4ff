#include "Assistant/Edits/FlowVocabulary.h"

#include "Assistant/NameMatch.h"
#include "Assistant/QuestionWords.h"
#include "Assistant/Words.h"

#include <algorithm>

namespace VexelService
{

namespace
{

using enum EValueKind;
using enum EStepKind;

constexpr FAction Actions[] = {
	{.Id = "print", .Type = "call.KismetSystemLibrary.PrintString", .Pins = {{{"value", "InString", Text}}}},
	{.Id = "delay", .Type = "call.KismetSystemLibrary.Delay", .Pins = {{{"seconds", "Duration", Number}}}},
	{.Id = "destroy",
		.Type = "call.Actor.K2_DestroyActor",
		.Pins = {{{"target", "self", Object}}},
		.ComponentType = "call.ActorComponent.K2_DestroyComponent"},
	{.Id = "spawn", .Kind = Spawn, .Type = "call.spawn_actor", .Pins = {{{"class", "Class", Class}}}},
	{.Id = "sound_at",
		.Type = "call.GameplayStatics.PlaySoundAtLocation",
		.Pins = {{{"sound", "Sound", Asset}, {"place", "Location", Vector}}}},
	{.Id = "sound", .Type = "call.GameplayStatics.PlaySound2D", .Pins = {{{"sound", "Sound", Asset}}}},
	{.Id = "show",
		.Type = "call.Actor.SetActorHiddenInGame",
		.Values = "bNewHidden=false",
		.Pins = {{{"target", "self", Object}}},
		.ComponentType = "call.SceneComponent.SetVisibility",
		.ComponentValues = "bNewVisibility=true;bPropagateToChildren=true"},
	{.Id = "hide",
		.Type = "call.Actor.SetActorHiddenInGame",
		.Values = "bNewHidden=true",
		.Pins = {{{"target", "self", Object}}},
		.ComponentType = "call.SceneComponent.SetVisibility",
		.ComponentValues = "bNewVisibility=false;bPropagateToChildren=true"},
	{.Id = "toggle",
		.Kind = ToggleVariable,
		.Type = "call.SceneComponent.ToggleVisibility",
		.Values = "bPropagateToChildren=true",
		.Pins = {{{"target", "self", Object}}},
		.ComponentType = "call.SceneComponent.ToggleVisibility",
		.ComponentValues = "bPropagateToChildren=true"},
	{.Id = "move_to",
		.Type = "call.Actor.K2_SetActorLocation",
		.Pins = {{{"target", "self", Object}, {"place", "NewLocation", Vector}}},
		.ComponentType = "call.SceneComponent.K2_SetRelativeLocation"},
	{.Id = "world_move_to",
		.Type = "call.Actor.K2_SetActorLocation",
		.Pins = {{{"target", "self", Object}, {"place", "NewLocation", Vector}}},
		.ComponentType = "call.SceneComponent.K2_SetWorldLocation"},
	{.Id = "move_by",
		.Type = "call.Actor.K2_AddActorWorldOffset",
		.Pins = {{{"target", "self", Object}, {"offset", "DeltaLocation", Vector}}},
		.ComponentType = "call.SceneComponent.K2_AddRelativeLocation"},
	{.Id = "local_move_by",
		.Type = "call.Actor.K2_AddActorLocalOffset",
		.Pins = {{{"target", "self", Object}, {"offset", "DeltaLocation", Vector}}},
		.ComponentType = "call.SceneComponent.K2_AddLocalOffset"},
	{.Id = "turn_to",
		.Type = "call.Actor.K2_SetActorRotation",
		.Pins = {{{"target", "self", Object}, {"rotation", "NewRotation", Rotator}}},
		.ComponentType = "call.SceneComponent.K2_SetRelativeRotation"},
	{.Id = "world_turn_to",
		.Type = "call.Actor.K2_SetActorRotation",
		.Pins = {{{"target", "self", Object}, {"rotation", "NewRotation", Rotator}}},
		.ComponentType = "call.SceneComponent.K2_SetWorldRotation"},
	{.Id = "turn_by",
		.Type = "call.Actor.K2_AddActorLocalRotation",
		.Pins = {{{"target", "self", Object}, {"rotation", "DeltaRotation", Rotator}}},
		.ComponentType = "call.SceneComponent.K2_AddLocalRotation"},
	{.Id = "world_turn_by",
		.Type = "call.Actor.K2_AddActorWorldRotation",
		.Pins = {{{"target", "self", Object}, {"rotation", "DeltaRotation", Rotator}}},
		.ComponentType = "call.SceneComponent.K2_AddWorldRotation"},
	{.Id = "collision_on",
		.Type = "call.Actor.SetActorEnableCollision",
		.Values = "bNewActorEnableCollision=true",
		.Pins = {{{"target", "self", Object}}}},
	{.Id = "collision_off",
		.Type = "call.Actor.SetActorEnableCollision",
		.Values = "bNewActorEnableCollision=false",
		.Pins = {{{"target", "self", Object}}}},
	{.Id = "life_span", .Type = "call.Actor.SetLifeSpan", .Pins = {{{"target", "self", Object}, {"seconds", "InLifespan", Number}}}},
	{.Id = "jump", .Type = "call.Character.Jump", .Pins = {{{"target", "self", Object}}}},
	{.Id = "launch",
		.Type = "call.Character.LaunchCharacter",
		.Values = "bZOverride=true",
		.Pins = {{{"target", "self", Object}, {"offset", "LaunchVelocity", Vector}}}},
	{.Id = "apply_damage",
		.Type = "call.GameplayStatics.ApplyDamage",
		.Pins = {{{"target", "DamagedActor", Object}, {"value", "BaseDamage", Number}}}},
	{.Id = "open_level", .Type = "call.GameplayStatics.OpenLevel", .Pins = {{{"level", "LevelName", Name}}}},
	{.Id = "restart", .Type = "call.KismetSystemLibrary.ExecuteConsoleCommand", .Values = "Command=RestartLevel"},
	{.Id = "quit", .Type = "call.KismetSystemLibrary.QuitGame"},
	{.Id = "set", .Kind = SetVariable, .Type = "var.set"},
	{.Id = "add", .Kind = ChangeVariable, .Type = "call.op.Add"},
	{.Id = "subtract", .Kind = ChangeVariable, .Type = "call.op.Subtract", .Start = "100"},
	{.Id = "multiply", .Kind = ChangeVariable, .Type = "call.op.Multiply", .Start = "1"},
	{.Id = "divide", .Kind = ChangeVariable, .Type = "call.op.Divide", .Start = "1"},
	{.Id = "open",
		.Kind = Open,
		.Type = "call.Actor.K2_AddActorLocalRotation",
		.Values = "DeltaRotation=0, 90, 0",
		.Pins = {{{"target", "self", Object}}},
		.ComponentType = "call.SceneComponent.K2_AddLocalRotation",
		.ComponentValues = "DeltaRotation=0, 90, 0"},
	{.Id = "close",
		.Kind = Open,
		.Type = "call.Actor.K2_AddActorLocalRotation",
		.Values = "DeltaRotation=0, -90, 0",
		.Pins = {{{"target", "self", Object}}},
		.ComponentType = "call.SceneComponent.K2_AddLocalRotation",
		.ComponentValues = "DeltaRotation=0, -90, 0"},
	{.Id = "call", .Kind = Call},
	{.Id = "timer", .Kind = TimerByFunction, .Type = "call.KismetSystemLibrary.K2_SetTimer", .Pins = {{{"seconds", "Time", Number}}}},
	{.Id = "repeating_timer",
		.Kind = TimerByFunction,
		.Type = "call.KismetSystemLibrary.K2_SetTimer",
		.Values = "bLooping=true",
		.Pins = {{{"seconds", "Time", Number}}}},
	{.Id = "stop_timer", .Kind = TimerByFunction, .Type = "call.KismetSystemLibrary.K2_ClearTimer"},
	{.Id = "loop", .Kind = Loop, .Type = "macro.ForLoop", .Pins = {{{"first", "FirstIndex", Integer}, {"last", "LastIndex", Integer}}}},
	{.Id = "flip_flop", .Kind = FlipFlop, .Type = "macro.FlipFlop"},
	{.Id = "do_once", .Kind = DoOnce, .Type = "macro.DoOnce"},
	{.Id = "if", .Kind = If, .Type = "flow.if"},
};

// The more telling ones first: the first that covers a clause has it.
constexpr FActionWording ActionWordings[] = {
	{"wait|delay|pause [for] {seconds} second|sec|s", "delay"},
	{"wait|delay|pause [for] {minutes} minute|min", "delay"},
	{"wait|delay|pause [for] a moment|while|bit", "delay", "seconds=2"},
	{"wait|delay|pause [for] {seconds}", "delay"},
	{"wait|delay|pause", "delay", "seconds=2"},
	{"after [a|some] delay|while|moment|time of {seconds} second|sec|s", "delay"},
	{"after {seconds} second|sec|s", "delay"},
	{"after {minutes} minute|min", "delay"},
	{"after a|some delay|while|moment|time", "delay", "seconds=2"},
	{"after delay|while|moment", "delay", "seconds=2"},
	{"{seconds} second|sec later", "delay"},
	{"print|log|display|output|say|write [text|message|string|value] [of] {value} on|to|in [the] "
	 "screen|log|console|viewport|output",
		"print"},
	{"print|log|display|output|say|write text|message|string|value|variable [of] {value}", "print"},
	{"print|log|display|output|say|write {value}", "print"},
	{"show text|message|string {value}", "print"},
	{"show {value} on|in [the] screen|log", "print"},
	{"print", "print", "value=Hello"},
	{"spawn|create [new] [actor] [of] [class] {class} at|in|on {place}", "spawn"},
	{"spawn|create [new] [actor] [of] [class] {class} with transform {place}", "spawn"},
	{"spawn|create new actor [of] [class] {class}", "spawn"},
	{"create new {class}", "spawn"},
	{"spawn [new] [actor] [of] [class] {class} here", "spawn"},
	{"spawn [new] [actor] [of] [class] {class}", "spawn"},
	{"play [sound] {sound} at|from {place}", "sound_at"},
	{"play sound {sound}", "sound"},
	{"play {sound} [sound]", "sound"},
	{"toggle|turn|switch {target} on and|or off", "toggle"},
	{"toggle|turn|switch on and|or off {target}", "toggle"},
	{"turn|switch on {target}", "show"},
	{"turn|switch {target} on", "show"},
	{"turn|switch off {target}", "hide"},
	{"turn|switch {target} off", "hide"},
	{"toggle visibility of|for {target}", "toggle"},
	{"toggle {target} visibility", "toggle"},
	{"toggle between {first} and {second}", "flip_flop"},
	{"toggle|switch|flip|invert|negate {target}", "toggle"},
	{"set|change visibility of {target} to true|on|visible", "show"},
	{"set|change visibility of {target} to false|off|hidden|invisible", "hide"},
	{"set|change {target} visibility to true|on|visible", "show"},
	{"set|change {target} visibility to false|off|hidden|invisible", "hide"},
	{"make|set {target} [to] visible", "show"},
	{"make|set {target} [to] invisible|hidden", "hide"},
	{"show|unhide|reveal|light {target}", "show"},
	{"hide {target}", "hide"},
	{"enable|activate collision [of|for|on] [{target}]", "collision_on"},
	{"disable|deactivate collision [of|for|on] [{target}]", "collision_off"},
	{"turn|switch on collision [of|for|on] [{target}]", "collision_on"},
	{"turn|switch off collision [of|for|on] [{target}]", "collision_off"},
	{"set world location|position of {target} to {place}", "world_move_to"},
	{"set [relative|actor] location|position of {target} to {place}", "move_to"},
	{"set [its|actor|actor's|relative|world] location|position to {place}", "move_to"},
	{"set {target} world location|position to {place}", "world_move_to"},
	{"set {target} [relative] location|position to {place}", "move_to"},
	{"set world rotation of {target} to {rotation}", "world_turn_to"},
	{"set [relative|actor] rotation of {target} to {rotation}", "turn_to"},
	{"set [its|actor|actor's|relative|world] rotation to {rotation}", "turn_to"},
	{"set {target} world rotation to {rotation}", "world_turn_to"},
	{"set {target} [relative] rotation to {rotation}", "turn_to"},
	{"set life span|lifespan [of {target}] to {seconds} [second]", "life_span"},
	{"teleport|move {target} to {place}", "move_to"},
	{"teleport|move to {place}", "move_to"},
	{"move {target} forward [by] {forward}", "local_move_by"},
	{"move {target} backward|back|backwards [by] {back}", "local_move_by"},
	{"move|raise|lift {target} up|upward|upwards [by] {up}", "move_by"},
	{"move|lower {target} down|downward|downwards [by] {down}", "move_by"},
	{"move {target} right [by] {right}", "local_move_by"},
	{"move {target} left [by] {left}", "local_move_by"},
	{"move forward [by] {forward}", "local_move_by"},
	{"move up [by] {up}", "move_by"},
	{"move down [by] {down}", "move_by"},
	{"move {target} locally by {offset}", "local_move_by"},
	{"move {target} by {offset} locally|relative|local", "local_move_by"},
	{"move {target} by {offset} [in] [world] [space]", "move_by"},
	{"move by {offset}", "move_by"},
	{"add {offset} to [its|actor|actor's] [world|relative] location|position", "move_by"},
	{"rotate|turn|spin {target} to {rotation} [degree]", "turn_to"},
	{"rotate|turn|spin to {rotation} [degree]", "turn_to"},
	{"add {rotation} to [its|actor|actor's] world rotation", "world_turn_by"},
	{"add {rotation} to [its|actor|actor's] [relative|local] rotation", "turn_by"},
	{"rotate|turn|spin by {rotation} [degree]", "turn_by"},
	{"rotate|turn|spin {target} by {rotation} [degree]", "turn_by"},
	{"rotate|turn|spin {target} {rotation} degree", "turn_by"},
	{"rotate|turn|spin {rotation} degree", "turn_by"},
	{"launch {target} up|upward|upwards|into|in [the] [air] [by|at|with] {up}", "launch"},
	{"launch [{target}] with|by|at|to [velocity|speed] {offset}", "launch"},
	{"launch [{target}]", "launch", "up=600"},
	{"jump", "jump"},
	{"make|let {target} jump", "jump"},
	{"apply|deal|do {value} [of] damage to {target}", "apply_damage"},
	{"damage {target} by {value}", "apply_damage"},
	{"open|load level|map {level}", "open_level"},
	{"go|travel|switch|change to level|map {level}", "open_level"},
	{"restart|reload level|map|game", "restart"},
	{"quit|exit [game]", "quit"},
	{"end game", "quit"},
	{"start|set|create [repeating|looping] timer [by] [function|event] [name|named|called|for|that] [calls|runs] {name} every "
	 "{seconds} second|s|sec",
		"repeating_timer"},
	{"start|set|create looping|repeating timer [by] [function|event] [name|named|called|for] {name} [of|with|for] {seconds} "
	 "second|s|sec",
		"repeating_timer"},
	{"start|set|create timer [by] [function|event] [name|named|called|for] {name} after|in|of|with|for {seconds} second|s|sec", "timer"},
	{"call|run {name} every {seconds} second|s|sec", "repeating_timer"},
	{"call|run {name} after|in {seconds} second|s|sec", "timer"},
	{"stop|clear|cancel timer [of|for|by] [function|event] {name}", "stop_timer"},
	{"increase|raise|increment {variable} by {value}", "add"},
	{"decrease|reduce|lower|decrement|drop {variable} by {value}", "subtract"},
	{"multiply {variable} by|with {value}", "multiply"},
	{"divide {variable} by {value}", "divide"},
	{"add {value} to {variable}", "add"},
	{"subtract|remove|take|deduct {value} from {variable}", "subtract"},
	{"lose {value:1} {variable:1}", "subtract"},
	{"lose {variable:1}", "subtract", "value=damage"},
	{"damage is subtracted|taken|removed from {variable}", "subtract", "value=damage"},
	{"damage lowers|reduces|decreases|drops {variable}", "subtract", "value=damage"},
	{"increment|increase|raise {variable}", "add", "value=1"},
	{"decrement|decrease {variable}", "subtract", "value=1"},
	{"double {variable}", "multiply", "value=2"},
	{"halve {variable}", "divide", "value=2"},
	{"set|change [variable] {variable} to|as {value}", "set"},
	{"set|make {variable} = {value}", "set"},
	{"{variable:1} = {value}", "set"},
	{"{variable:1} += {value}", "add"},
	{"{variable:1} -= {value}", "subtract"},
	{"set [variable] {variable} true|false|on|off", "set"},
	{"reset {variable}", "set", "value=0"},
	{"lock {what}", "set", "variable=bLocked;value=true"},
	{"unlock {what}", "set", "variable=bLocked;value=false"},
	{"destroy|kill|delete|remove|despawn [this] actor|itself|itself|it|self|me", "destroy"},
	{"destroy|kill|delete|despawn {target}", "destroy"},
	{"die", "destroy"},
	{"open up|it", "open"},
	{"open {target}", "open"},
	{"open", "open"},
	{"close it|again", "close"},
	{"close|shut {target}", "close"},
	{"close|shut", "close"},
	{"opening [{target}]", "open"},
	{"closing [{target}]", "close"},
	{"{target} opens|open", "open"},
	{"{target} closes|close|shuts|shut", "close"},
	{"is|be destroyed|killed|removed", "destroy"},
	{"{target} is destroyed|killed|removed|destroys", "destroy"},
	{"{target} disappears|vanishes", "hide"},
	{"{target} appears", "show"},
	{"{target} jumps", "jump"},
	{"call|invoke|broadcast [event|own] dispatcher {name}", "call"},
	{"call|run|execute|fire|invoke|broadcast [own] [function|event|custom] [event] [named|called] {name}", "call"},
};

constexpr FEvent Events[] = {
	{.Id = "begin_play", .Type = "event.Actor.ReceiveBeginPlay"},
	{.Id = "tick", .Type = "event.Actor.ReceiveTick"},
	{.Id = "overlap",
		.Kind = EEventKind::Overlap,
		.Type = "event.Actor.ReceiveActorBeginOverlap",
		.ComponentType = "event.PrimitiveComponent.OnComponentBeginOverlap",
		.OtherPin = "OtherActor",
		.ComponentOtherPin = "OtherActor"},
	{.Id = "overlap_end",
		.Kind = EEventKind::Overlap,
		.Type = "event.Actor.ReceiveActorEndOverlap",
		.ComponentType = "event.PrimitiveComponent.OnComponentEndOverlap",
		.OtherPin = "OtherActor",
		.ComponentOtherPin = "OtherActor"},
	{.Id = "hit",
		.Kind = EEventKind::Overlap,
		.Type = "event.Actor.ReceiveHit",
		.ComponentType = "event.PrimitiveComponent.OnComponentHit",
		.OtherPin = "Other",
		.ComponentOtherPin = "OtherActor"},
	{.Id = "damage", .Type = "event.Actor.ReceiveAnyDamage", .OtherPin = "DamageCauser"},
	{.Id = "destroyed", .Type = "event.Actor.ReceiveDestroyed"},
	{.Id = "end_play", .Type = "event.Actor.ReceiveEndPlay"},
	{.Id = "key_pressed", .Kind = EEventKind::Key, .Type = "input.key", .Pin = "Pressed"},
	{.Id = "key_released", .Kind = EEventKind::Key, .Type = "input.key", .Pin = "Released"},
	{.Id = "every", .Kind = EEventKind::Every},
	{.Id = "later", .Kind = EEventKind::Later, .Type = "event.Actor.ReceiveBeginPlay"},
	{.Id = "changes", .Kind = EEventKind::VariableChanges},
	{.Id = "named", .Kind = EEventKind::Named},
};

// Of a key are only words that name one, so those come before what is hit and touched.
constexpr FEventWording EventWordings[] = {
	{"[key] {key:1} [key] is pressed|hit", "key_pressed"},
	{"{key} [key|button] is pressed|hit|clicked", "key_pressed"},
	{"{key} [key] goes|is down", "key_pressed"},
	{"[i|player|user|you|someone|we|they] press|pressing|hit|hitting|push|pushing [key|button] {key} [key|button]", "key_pressed"},
	{"[key|button] press|pressing [of|key] {key} [key|button]", "key_pressed"},
	{"{key} [key|button] press|pressed", "key_pressed"},
	{"key {key}", "key_pressed"},
	{"{key:1} key", "key_pressed"},
	{"input|key event|press [of|for] {key}", "key_pressed"},
	{"left|right mouse click|button", "key_pressed"},
	{"{key} [key|button] is released|up", "key_released"},
	{"[i|player|user|you|someone] release|releasing|let go [of] [key] {key} [key|button]", "key_released"},
	{"[key] release [of] {key} [key]", "key_released"},
	{"{key} [key] release|released", "key_released"},
	{"[event] beginplay", "begin_play"},
	{"[event] begin|beginning play", "begin_play"},
	{"start|startup|start-up [of] [game|play|level]", "begin_play"},
	{"game|play|level|match|it begin|start|begin", "begin_play"},
	{"actor|it is spawned|created", "begin_play"},
	{"actor|it spawn", "begin_play"},
	{"[event] tick", "tick"},
	{"every|each frame|tick|update", "tick"},
	{"every|each {seconds} second|sec|s", "every"},
	{"every|each {minutes} minute|min", "every"},
	{"every|each second", "every"},
	{"every|each minute", "every"},
	{"{seconds:1} second|sec|s [have|has] [passed|elapsed]", "later"},
	{"[event] [actor] begin overlap", "overlap"},
	{"[actor] overlap [begin|start]", "overlap"},
	{"component [begin] overlap [of|with|on] {what}", "overlap"},
	{"overlap with|of|by {who:1}", "overlap"},
	{"{what} begin|start overlap [begin]", "overlap"},
	{"{who} begin|start to overlap|touch [{what}]", "overlap"},
	{"{who} begin|start overlapping|touching [{what}]", "overlap"},
	{"{who} overlap|touch|enter [with] [{what}]", "overlap"},
	{"{who} come|get|walk|go|is near|nearby|close|closer [to|by] [{what}]", "overlap"},
	{"{who} approach [{what}]", "overlap"},
	{"{who} walk|step|run|come|go|get|move into|onto|in|inside|through [{what}]", "overlap"},
	{"{what} is overlapped|touched|entered [by] [{who}]", "overlap"},
	{"overlapped|touched|overlapping [by] [{who}]", "overlap"},
	{"[event] [actor] end|ending overlap", "overlap_end"},
	{"[actor] overlap end|ended|stop", "overlap_end"},
	{"component end overlap [of|with|on] {what}", "overlap_end"},
	{"{who} leave|exit [{what}]", "overlap_end"},
	{"{who} stop|end overlapping|touching|overlap [{what}]", "overlap_end"},
	{"{who} walk|step|run|come|go|move out|away|off [of|from] [{what}]", "overlap_end"},
	{"[event] hit|collision|impact", "hit"},
	{"{what} is|get hit|struck [by] [{who}]", "hit"},
	{"{who} hit|strike {what}", "hit"},
	{"{what} collide [with] [{who}]", "hit"},
	{"[event] [any|taking|receiving|point|radial] damage", "damage"},
	{"{what} take|receive|get|suffer [any|some] damage", "damage"},
	{"{what} is|get damaged|hurt|shot|attacked", "damage"},
	{"damaged|hurt", "damage"},
	{"[event] destroyed|destruction|death", "destroyed"},
	{"actor|it is|get destroyed|killed", "destroyed"},
	{"actor|it die", "destroyed"},
	{"[event] end|ending play", "end_play"},
	{"[event] endplay", "end_play"},
	{"game|play|level end|stop|end", "end_play"},
	{"[variable|value] [of] {variable} change", "changes"},
	{"[variable|value] [of] {variable} is changed|set|updated|modified", "changes"},
	{"change of {variable}", "changes"},
	{"custom event [named|called] {name} [is] [called|fired|happens|triggered|runs]", "named"},
	{"event|function [named|called] {name} [is] [called|fired|happens|triggered|runs]", "named"},
	{"{name} is called|fired|triggered|executed|run", "named"},
	{"{name} happen|fire|run", "named"},
};

constexpr FOutputName OutputNames[] = {
	{"damage|damage amount|amount of damage|damage taken|damage received", "Damage"},
	{"other actor|overlapping actor|overlapped actor|other|that actor|whoever|instigating actor|visitor", "OtherActor"},
	{"other actor|other|hit actor|that actor", "Other"},
	{"damage causer|causer|attacker", "DamageCauser"},
	{"delta seconds|delta time|delta|frame time", "DeltaSeconds"},
	{"other component|overlapping component", "OtherComp"},
	{"hit location|impact point|location of hit", "HitLocation"},
	{"hit normal|normal", "HitNormal"},
	{"index|loop index|counter", "Index"},
};

constexpr FComponentWord ComponentWords[] = {
	{"light|lamp|point light|bulb|lantern", "PointLightComponent", true},
	{"spot light|spotlight|torch|flashlight", "SpotLightComponent", true},
	{"mesh|static mesh|model|body", "StaticMeshComponent"},
	{"skeletal mesh|character mesh", "SkeletalMeshComponent"},
	{"box|trigger|trigger box|box collision|collision box", "BoxComponent"},
	{"sphere|sphere collision", "SphereComponent"},
	{"capsule", "CapsuleComponent"},
	{"root|scene root", "SceneComponent"},
	{"audio|sound", "AudioComponent"},
	{"camera", "CameraComponent"},
	{"text|label", "TextRenderComponent"},
	{"arrow", "ArrowComponent"},
};

struct FKeyWord
{
	std::string_view Words;
	std::string_view Key;
};

constexpr FKeyWord KeyWords[] = {
	{"space|spacebar|space bar", "SpaceBar"},
	{"enter|return", "Enter"},
	{"escape|esc", "Escape"},
	{"tab|tabulator", "Tab"},
	{"backspace", "BackSpace"},
	{"delete|del", "Delete"},
	{"shift|left shift", "LeftShift"},
	{"right shift", "RightShift"},
	{"control|ctrl|left control|left ctrl", "LeftControl"},
	{"right control|right ctrl", "RightControl"},
	{"alt|left alt", "LeftAlt"},
	{"up|up arrow|arrow up", "Up"},
	{"down|down arrow|arrow down", "Down"},
	{"left|left arrow|arrow left", "Left"},
	{"right|right arrow|arrow right", "Right"},
	{"left mouse|left mouse button|left click|mouse|mouse button|click|left button", "LeftMouseButton"},
	{"right mouse|right mouse button|right click|right button", "RightMouseButton"},
	{"middle mouse|middle mouse button|middle click", "MiddleMouseButton"},
	{"mouse wheel up|wheel up|scroll up", "MouseScrollUp"},
	{"mouse wheel down|wheel down|scroll down", "MouseScrollDown"},
	{"0|zero", "Zero"},
	{"1|one", "One"},
	{"2|two", "Two"},
	{"3|three", "Three"},
	{"4|four", "Four"},
	{"5|five", "Five"},
	{"6|six", "Six"},
	{"7|seven", "Seven"},
	{"8|eight", "Eight"},
	{"9|nine", "Nine"},
	{"gamepad a|a button|face button bottom", "Gamepad_FaceButton_Bottom"},
	{"gamepad b|b button|face button right", "Gamepad_FaceButton_Right"},
};

constexpr int MaxFunctionKey = 12;

template <typename TRow>
const TRow* FindById(std::span<const TRow> Rows, std::string_view Id)
{
	const auto Found = std::find_if(Rows.begin(), Rows.end(), [Id](const TRow& Row)
		{ return Row.Id == Id; });
	return Found == Rows.end() ? nullptr : &*Found;
}

}

std::span<const FAction> GetActions() { return Actions; }

std::span<const FActionWording> GetActionWordings() { return ActionWordings; }

std::span<const FEvent> GetEvents() { return Events; }

std::span<const FEventWording> GetEventWordings() { return EventWordings; }

std::span<const FOutputName> GetOutputNames() { return OutputNames; }

const FAction* FindAction(std::string_view Id) { return FindById(GetActions(), Id); }

const FEvent* FindEvent(std::string_view Id) { return FindById(GetEvents(), Id); }

const FComponentWord* FindComponentWord(std::string_view Words)
{
	const auto Found = std::find_if(
		std::begin(ComponentWords), std::end(ComponentWords), [Words](const FComponentWord& Row)
		{ return IsOneOf(Words, Row.Words); });
	return Found == std::end(ComponentWords) ? nullptr : &*Found;
}

std::optional<std::string> FindKey(std::string_view Words)
{
	const auto Row = std::find_if(std::begin(KeyWords), std::end(KeyWords),
		[Words](const FKeyWord& Candidate)
		{ return IsOneOf(Words, Candidate.Words) || SameName(Words, Candidate.Key); });
	if (Row != std::end(KeyWords))
	{
		return std::string(Row->Key);
	}
	const std::string Upper = UpperFirst(LowerCase(Words));
	const bool bLetter = Upper.size() == 1 && Upper[0] >= 'A' && Upper[0] <= 'Z';
	bool bFunctionKey = false;
	for (int Number = 1; Number <= MaxFunctionKey; ++Number)
	{
		bFunctionKey |= Upper == "F" + std::to_string(Number);
	}
	return bLetter || bFunctionKey ? std::optional<std::string>(Upper) : std::nullopt;
}

}
