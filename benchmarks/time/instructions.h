// SPDX-License-Identifier: MIT
#ifndef STBBENCH_INSTRUCTIONS_H
#define STBBENCH_INSTRUCTIONS_H

#include "measure.h"

#include <QtCore/qstring.h>

#include <optional>

namespace stbbench {

/*! Whether this program was built with callgrind's requests. */
bool canCollect();

/*! To be run under callgrind with --collect-atstart=no: collects while one phase of \a count items runs. */
void collectItems(const Subject &subject, Form &form, Phase phase, int count);

/*!
    Runs this program again under callgrind, once for each phase, and returns the instructions of one item of the
    form number \a form of \a subject. Nothing when valgrind fails; \a error says why.
*/
std::optional<ItemTime> instructionsPerItem(const Subject &subject, int form, int count, QString *error);

} // namespace stbbench

#endif // STBBENCH_INSTRUCTIONS_H
