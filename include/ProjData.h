// The project: record, file, folders, known projects, renewal of its layouts, logic generation.
#pragma once

#include "Types.h"
#include "layout/ProjectRecord.h"
#include "layout/Screen.h"
#include "project/LogicGeneration.h"
#include "project/ProjectCommands.h"
#include "project/ProjectFiles.h"
