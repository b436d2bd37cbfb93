// Changes of a ladder by hand, as pure functions of a network: whoever edits the network of the design calls
// StandByHand (DesignStanding.h) with it, while the arms of a diplexer and trial networks have no such marks.
//
// Stages are numbered from 1, next to the source, to Stages. A routine that would leave more than StagesMax stages, or
// is given a stage that is not there, throws BoundFault; one whose results leave the range of numbers throws
// NumericFault. The network is then as it was.
#pragma once

#include "core/Network.h"

namespace quilm {

bool HasRoomFor(const Network& network, int stages);

// All values and tolerances become 0. The type stays, so that the place is still drawn until another is chosen.
void ClearValues(Stage& stage);

// Makes the stage an inductor, a capacitor or both, without tolerances; values of other kinds stay where they are.
void MakePart(Stage& stage, i16 elementType, f32 L, f32 C);

// Puts a stage without values before stage `at`, 1 to Stages + 1; the last appends. Until a type is chosen the place
// has the type of the stage that stood there, as a symbol for the eye, and at the end none.
void InsertStage(Network& network, int at);

// Takes stage `at` out; those behind it move down.
void DeleteStage(Network& network, int at);

// Puts a stage behind the last one. Entry by hand warns at StagesMax and goes on to the bound of the list, stageBound,
// beyond which this throws BoundFault; pages that show a network cut it (CutStages).
void AppendStage(Network& network, const Stage& stage);

// Takes the last stage away and leaves nothing of its values; its type stays behind the network, where it means
// nothing.
void DropLastStage(Network& network);

// Leaves what is above StagesMax out of the network. False when nothing is.
bool CutStages(Network& network);

// What a reactance of X ohms (not 0) at F Hz (above 0) is: the types 17 and 18, which are forms of entry alone, become
// an inductor of X / (2 Pi F) for a positive X and a capacitor of 1 / (-X 2 Pi F) for a negative one, in the line or to
// common. Throws NumericFault, and changes nothing, where the result leaves the range of numbers.
void ResolveReactance(Stage& stage, f32 X, f32 F);

// Moves stage `first` (1 to Stages + 1) and all behind it up by `places`, whole, and leaves blank stages there.
void MoveStagesUp(Network& network, int first, int places);

// The same for a matching section that is set before a resonator. Of stages made of inductors and capacitors types and
// values of L and C move, while tolerances and all other values keep their places: so the step sizes of tuning, which
// rest in the tolerances, stay with the numbers of their stages. All other types (resistors, lines, transformers) move
// whole, since they would be nothing without their other values. The list may grow to its bound, stageBound; beyond it
// this throws BoundFault.
void MovePartsUp(Network& network, int first, int places);

// Raises a source below 0.01 ohm to 0.01, the least that can stand at a network's end as its load. True when it was
// raised.
bool RaiseSource(Network& network);

// End for end: the last stage becomes the first, whole, and the terminations change sides with their step sizes, after
// RaiseSource. Coupled inductors and transformers keep their primary where it is within the stage.
void SwapEndForEnd(Network& network);

// Raises all impedances by the factor: terminations, reference and inductors times `factor`, capacitors divided by it.
// Only parts above 0 change. Nothing happens for a factor of 0 or less.
void ScaleImpedance(Network& network, f32 factor);

// Shifts the response in frequency: all inductors and capacitors above 0 are divided by the factor, which moves it up,
// or multiplied by it, which moves it down. Terminations, lines and couplings stay.
enum class Shift { Up, Down };
void ScaleFrequency(Network& network, f32 factor, Shift shift);

}  // namespace quilm
