#pragma once

class GatherWizard;
class OpenTool;
class Output;

/// Tells what a gather would take, how large it is and how much room there is, and gathers nothing.
void preview(OpenTool& tool, GatherWizard& wizard, Output& output);
