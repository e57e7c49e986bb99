#pragma once

#include "certificate/certificatelabels.h"

/// The words of the painted page.
extern const CertificateLabels paperLabels;
