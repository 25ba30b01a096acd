// Anchors the test-support library (its classes are header-only with moc).
