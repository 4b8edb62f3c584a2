// May the user be asked or told anything?
#pragma once

// Asked before any alert or dialog comes up. True as long as the host has nothing to say on the matter.
bool IsUserInteractionAllowed();
