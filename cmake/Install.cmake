# Nothing is installed yet.
