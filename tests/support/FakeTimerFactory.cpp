// Anchors the fake timers' library (the class is header-only with moc).
