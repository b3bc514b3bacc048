// The build makes precompiled headers beside a source: this one.
