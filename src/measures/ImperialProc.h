// Feet and inches both ways, and numbers in words.
#pragma once

#include "measures/FeetInchFormatting.h"
#include "measures/FeetInchParsing.h"
#include "measures/NumberWords.h"
