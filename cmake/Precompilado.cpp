// The source that Qt's precompiled header is made for; the project's Qt targets take it up.
