#pragma once

// Every template, string and control number of the library, for code that addresses the
// dialogs by number (the workbench, tests).
#include "res/CommonResource.h"
#include "res/CustomizeResource.h"
#include "res/DrawResource.h"
#include "res/HatchResource.h"
#include "res/LayerResource.h"
#include "res/SystemResource.h"
