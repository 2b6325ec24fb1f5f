#include "hosts/cli/gather/gather_progress.h"

namespace cli {

GatherProgress::GatherProgress(Label& step, ProgressBar& current, ProgressBar& overall)
    : step_(step), current_(current), overall_(overall)
{
    step_.observe(this);
    current_.observe(this);
    overall_.observe(this);
}

GatherProgress::~GatherProgress()
{
    step_.observe(nullptr);
    current_.observe(nullptr);
    overall_.observe(nullptr);
}

void GatherProgress::changed(Control&)
{
    double done = overall_.value();
    if (current_.visible() && current_.maximum() > 0)
        done += static_cast<double>(current_.value()) / static_cast<double>(current_.maximum());
    const double all = overall_.maximum();
    line_.show(all > 0 ? done / all : 0, step_.caption());
}

} // namespace cli
