"""The worksheet functions of KORVELMathTools, apart from the office that calls them."""
