#pragma once

class IPrintScheme;
class IUserScheme;

// Fills a new user scheme from a source: a factory scheme's values one by one, or the whole block of a user scheme.
// Without a source it keeps the host's defaults. The name is not copied.
void CopySchemeInto(IUserScheme& target, int sourceId);

// Fills a new factory scheme with the whole block of another one.
void CopySchemeInto(IPrintScheme& target, int sourceId);
