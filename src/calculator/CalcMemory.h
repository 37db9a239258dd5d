// The two memories: MEM, kept in the settings, and a hundred registers with descriptions, kept in
// the file CalcMem.mem and managed through the dialog CalcMemoryFrm.
#pragma once

#include "calculator/CalcMainFrm.h"
#include "common/Bytes.h"

namespace Tensarix {

constexpr std::string_view registerFileName = "CalcMem.mem";

// The file: for each register its value (8 bytes), the length of its description (2 bytes) and the
// description in UTF-8. A longer description than the length can hold is cut at a character.
Bytes Registers_Image(const RegisterList& registers);

// Every register that the bytes hold; the rest are zero and empty. A value that is no number reads
// 0; a description in 8-bit text of another code page is taken as Latin-1.
RegisterList Registers_From(const Bytes& bytes);

// Read on opening, written on closing. A failure is ignored: the memories stay as they are.
void Open_Memory(CalcMainFrm& form);
void Close_Memory(CalcMainFrm& form);

// The keys.
void key_Min(CalcMainFrm& form); // also while an error is latched
void key_Kin(CalcMainFrm& form);
void key_Mplus(CalcMainFrm& form);
void key_Mminus(CalcMainFrm& form);
void key_KAC(CalcMainFrm& form);
void Key_Memory_Recall(CalcMainFrm& form);   // "mo"
void Key_Register_Recall(CalcMainFrm& form); // "ko"
void Key_Register_Swap(CalcMainFrm& form);   // "xk"

} // namespace Tensarix
